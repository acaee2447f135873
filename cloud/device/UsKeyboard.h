#pragma once

#include <QString>

#include <optional>

// A US keyboard in terms of linux/input-event-codes.h. Pure functions, any thread.
namespace orvane::cloud::usKeyboard {

// The printable character of a key, Space included; none for every other key.
std::optional<QChar> character(int code, bool shift);
// What is printed on the key, such as "A", "Enter" or "F5"; "Key 700" for a key without a name.
QString name(int code);

} // namespace orvane::cloud::usKeyboard
