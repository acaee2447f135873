#pragma once

#include <cstdint>
#include <random>
#include <string>

// Damages access units in the ways that broken senders do, the same way for the same seed.
class Mutator
{
public:
    explicit Mutator(std::uint32_t seed);
    // Changes `data` by one to four flips, overwritten, cut out, doubled or inserted bytes.
    void mutate(std::string &data);
    // A number from 0 to `count` - 1.
    std::size_t below(std::size_t count);

private:
    void mutateOnce(std::string &data);
    std::mt19937 m_random;
};
