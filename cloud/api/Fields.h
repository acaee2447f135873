#pragma once

#include <QJsonObject>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace orvane::cloud {

// The named values that came with a request, checked as they are read: a value that is missing or not as
// required throws ApiError with BadField and a text that names it. Used on the handling thread.
class Fields
{
public:
    Fields() = default;
    explicit Fields(QJsonObject values);

    bool contains(const char *name) const;
    // A text of 1 to maxBytes bytes of UTF-8 without control characters.
    std::string text(const char *name, std::size_t maxBytes = 128) const;
    // The same, or "" when it is missing or empty.
    std::string textOrEmpty(const char *name, std::size_t maxBytes = 128) const;
    // A text as text() wants it or an empty one; must be there.
    std::string emptyOrText(const char *name, std::size_t maxBytes = 128) const;
    // Lines for people to read: up to maxBytes bytes of UTF-8 without control characters other than line
    // breaks and tabs. "" when it is missing.
    std::string lines(const char *name, std::size_t maxBytes) const;
    // A name that a user gave: 1 to maxCharacters Unicode code points without control characters. Blanks at
    // its ends do not belong to it.
    std::string title(const char *name, int maxCharacters) const;
    // A secret: a text of 1 to maxBytes bytes of any kind.
    std::string secret(const char *name, std::size_t maxBytes = 256) const;
    // An integral number within a range, both ends included.
    std::int64_t integer(const char *name, std::int64_t lowest, std::int64_t highest) const;
    bool boolean(const char *name) const;
    // An array of 1 to maxCount texts as above.
    std::vector<std::string> texts(const char *name, std::size_t maxCount, std::size_t maxBytes = 128) const;
    // An array of 1 to maxCount objects.
    std::vector<Fields> objects(const char *name, std::size_t maxCount) const;
    // A number written as decimal digits, as queries carry it; `missing` when it is not there.
    std::uint64_t number(const char *name, std::uint64_t missing, std::uint64_t highest) const;

private:
    QJsonValue required(const char *name) const;

    QJsonObject m_values;
};

} // namespace orvane::cloud
