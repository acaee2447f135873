#include "Mutator.h"

#include <algorithm>

Mutator::Mutator(std::uint32_t seed)
    : m_random(seed)
{ }

std::size_t Mutator::below(std::size_t count)
{
    return count == 0 ? 0 : m_random() % count;
}

void Mutator::mutate(std::string &data)
{
    for (std::size_t i = below(4) + 1; i > 0; --i)
        mutateOnce(data);
}

void Mutator::mutateOnce(std::string &data)
{
    if (data.empty())
        return;
    const std::size_t at = below(data.size());
    const std::size_t length = std::min(below(40) + 1, data.size() - at);
    switch (below(6)) {
    case 0:
        data[at] = static_cast<char>(data[at] ^ (1 << below(8)));
        break;
    case 1:
        data[at] = static_cast<char>(below(256));
        break;
    case 2:
        data.resize(at);
        break;
    case 3:
        data.erase(at, length);
        break;
    case 4:
        data.insert(at, data.substr(at, length));
        break;
    default:
        data.insert(at, std::string("\0\0\1", 3) + static_cast<char>(below(256)));
        break;
    }
}
