#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Makes damaged messages of the gateway, reproducibly: a good one with a few changes by chance.
class MessageMutator
{
public:
    explicit MessageMutator(std::uint64_t seed);

    // The next one; valid until the following call.
    const std::string &next();

private:
    std::uint32_t random(std::uint32_t below);
    void mutate();

    std::uint64_t m_state;
    const std::vector<std::string> m_good;
    std::string m_bytes;
};
