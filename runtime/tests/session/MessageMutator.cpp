#include "MessageMutator.h"

#include "Hex.h"

namespace {

// One of every message for the client, and one that is not.
std::vector<std::string> goodMessages()
{
    std::vector<std::string> messages;
    for (const char *hex : {
             "a2 01 0c 12 02 6e 6f 18 d0 05 20 80 0a 28 01",
             "aa 01 15 08 01 10 c0 84 3d 18 01 22 05 00 00 00 01 65 28 d0 05 30 80 0a",
             "b2 01 13 0a 0d 08 02 10 90 01 18 da 01 20 05 30 80 02 10 01 18 03",
             "ba 01 02 08 01",
             "c2 01 0b 08 d4 01 10 01 18 d0 05 20 80 0a",
             "ca 01 06 0a 04 68 69 c3 a9",
             "d2 01 02 08 02",
             "da 01 02 08 01",
             "e2 01 05 08 01 12 01 78",
             "c2 02 05 08 01 10 96 01",
             "ca 02 08 08 05 10 96 01 18 ac 02",
             "22 02 08 03",
         })
        messages.push_back(fromHex(hex));
    return messages;
}

} // namespace

MessageMutator::MessageMutator(std::uint64_t seed)
    : m_state(seed | 1)
    , m_good(goodMessages())
{ }

// xorshift64*
std::uint32_t MessageMutator::random(std::uint32_t below)
{
    m_state ^= m_state >> 12;
    m_state ^= m_state << 25;
    m_state ^= m_state >> 27;
    return static_cast<std::uint32_t>((m_state * 0x2545f4914f6cdd1dULL) >> 33) % below;
}

const std::string &MessageMutator::next()
{
    m_bytes = m_good[random(static_cast<std::uint32_t>(m_good.size()))];
    const std::uint32_t mutations = 1 + random(3);
    for (std::uint32_t i = 0; i < mutations; ++i)
        mutate();
    return m_bytes;
}

void MessageMutator::mutate()
{
    const auto position = [this] { return random(static_cast<std::uint32_t>(m_bytes.size())); };
    if (m_bytes.empty()) {
        m_bytes = std::string(1, static_cast<char>(random(256)));
        return;
    }
    switch (random(6)) {
    case 0:
        m_bytes[position()] ^= static_cast<char>(1u << random(8));
        break;
    case 1:
        m_bytes[position()] = static_cast<char>(random(256));
        break;
    case 2:
        m_bytes.insert(position(), 1 + random(3), static_cast<char>(random(256)));
        break;
    case 3:
        m_bytes.erase(position(), 1 + random(4));
        break;
    case 4:
        m_bytes.resize(position());
        break;
    default:
        // Another message inside or behind this one.
        m_bytes.insert(position(), m_good[random(static_cast<std::uint32_t>(m_good.size()))]);
        break;
    }
}
