#pragma once

#include <stdexcept>

namespace orvane::cloud {

// The state cannot be read or written. what() names the operation and SQLite's reason.
class DatabaseError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace orvane::cloud
