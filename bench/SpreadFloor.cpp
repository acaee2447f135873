#include "SpreadFloor.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/read.hpp>
#include <boost/asio/write.hpp>

#include <algorithm>
#include <array>
#include <future>
#include <memory>
#include <thread>

namespace bench {

namespace {

using boost::asio::ip::tcp;
using Time = std::chrono::steady_clock::time_point;

constexpr std::size_t messageBytes = 64; // about as much as a touch

// The reading end of one connection.
class Receiver
{
public:
    Receiver(tcp::socket socket, std::size_t events)
        : m_socket(std::move(socket))
    {
        m_arrivals.reserve(events);
    }

    void read()
    {
        boost::asio::async_read(m_socket, boost::asio::buffer(m_message),
            [this](const boost::system::error_code &error, std::size_t) {
                if (error)
                    return; // closed by the writer
                m_arrivals.push_back(std::chrono::steady_clock::now());
                read();
            });
    }

    const std::vector<Time> &arrivals() const { return m_arrivals; }

private:
    tcp::socket m_socket;
    std::array<char, messageBytes> m_message{};
    std::vector<Time> m_arrivals;
};

void write(std::vector<tcp::socket> sockets, int events, std::chrono::milliseconds pause)
{
    const std::array<char, messageBytes> message{};
    for (int i = 0; i < events; ++i) {
        for (tcp::socket &socket : sockets)
            boost::asio::write(socket, boost::asio::buffer(message));
        std::this_thread::sleep_for(pause);
    }
}

} // namespace

std::vector<double> spreadFloor(int receivers, int events, std::chrono::milliseconds pause)
{
    boost::asio::io_context reading;
    boost::asio::io_context writing;
    tcp::acceptor acceptor(reading, {boost::asio::ip::address_v4::loopback(), 0});
    std::vector<tcp::socket> sockets;
    std::vector<std::unique_ptr<Receiver>> ends;
    for (int i = 0; i < receivers; ++i) {
        sockets.emplace_back(writing).connect(acceptor.local_endpoint());
        sockets.back().set_option(tcp::no_delay(true));
        ends.push_back(std::make_unique<Receiver>(acceptor.accept(), static_cast<std::size_t>(events)));
        ends.back()->read();
    }
    auto writer = std::async(std::launch::async, write, std::move(sockets), events, pause);
    reading.run(); // until every connection is closed
    writer.get();

    std::vector<double> spreads;
    for (std::size_t i = 0; i < static_cast<std::size_t>(events); ++i) {
        const auto [first, last] = std::minmax_element(ends.begin(), ends.end(),
            [i](const auto &a, const auto &b) { return a->arrivals().at(i) < b->arrivals().at(i); });
        const std::chrono::duration<double, std::milli> spread
            = (*last)->arrivals().at(i) - (*first)->arrivals().at(i);
        spreads.push_back(spread.count());
    }
    return spreads;
}

} // namespace bench
