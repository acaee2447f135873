#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace orvane::cloud::test {

// Bytes from hexadecimal text; blanks are skipped.
inline std::string hex(std::string_view text)
{
    std::string bytes;
    int high = -1;
    for (const char c : text) {
        if (c == ' ') {
            continue;
        }
        const auto digit = std::string_view("0123456789ABCDEF").find(c);
        if (digit == std::string_view::npos) {
            throw std::invalid_argument("not a hexadecimal digit");
        }
        if (high < 0) {
            high = static_cast<int>(digit);
        } else {
            bytes.push_back(static_cast<char>(high * 16 + static_cast<int>(digit)));
            high = -1;
        }
    }
    return bytes;
}

// The other way, for readable failures.
inline std::string toHex(std::string_view bytes)
{
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        text += text.empty() ? "" : " ";
        text += "0123456789ABCDEF"[byte >> 4];
        text += "0123456789ABCDEF"[byte & 15];
    }
    return text;
}

} // namespace orvane::cloud::test
