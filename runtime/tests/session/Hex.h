#pragma once

#include <stdexcept>
#include <string>

// Bytes from pairs of hexadecimal digits; spaces between them are ignored.
inline std::string fromHex(const std::string &text)
{
    std::string bytes;
    std::string digits;
    for (const char c : text) {
        if (c == ' ')
            continue;
        digits += c;
        if (digits.size() == 2) {
            bytes += static_cast<char>(std::stoi(digits, nullptr, 16));
            digits.clear();
        }
    }
    if (!digits.empty())
        throw std::invalid_argument("odd number of digits");
    return bytes;
}

inline std::string toHex(const std::string &bytes)
{
    static const char *const digits = "0123456789abcdef";
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (!text.empty())
            text += ' ';
        text += digits[byte >> 4];
        text += digits[byte & 15];
    }
    return text;
}
