#pragma once

#include <cstdint>
#include <functional>
#include <mutex>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

class SWDataSourceListener;
class VideoDisplay;

// What the recording SDK has been asked to do, for tests to compare. One per process; any thread.
//
// Each call is one text, such as "SWDataSource::sendKeyEvent(3, 172)": strings in quotes, arrays in brackets,
// no pointer as "none". Objects are numbered by SWPlayer::getId, which is not part of the text.
class Recorder
{
public:
    static Recorder &instance();

    // Forgets every call and setting; the objects that exist stay.
    void reset();
    std::vector<std::string> calls() const;
    // Returns the calls so far and forgets them.
    std::vector<std::string> takeCalls();
    // Those of the calls that were made while the calling thread held a Mutex.
    std::vector<std::string> callsUnderLock() const;

    // What SWDataSource::getVideoLevelResult reports; none: nothing is written, as before the first sign-in.
    void setRemoteSize(int width, int height);
    std::optional<std::pair<int, int>> remoteSize() const;

    // The listener of the newest data source and the display of the newest player; none after their end.
    SWDataSourceListener *listener() const;
    VideoDisplay *display() const;

    // Called with every call as it is made, on the thread that makes it; none = nobody. Set it while no call
    // is under way.
    void setObserver(std::function<void(const std::string &)> observer);

    // For the recording SDK itself.
    template <typename... Args>
    void record(const char *name, const Args &...args)
    {
        std::ostringstream text;
        text << name << '(';
        [[maybe_unused]] const char *separator = "";
        ((text << separator << quoted(args), separator = ", "), ...);
        text << ')';
        add(text.str());
    }
    void lockTaken();
    void lockReleased();
    void setListener(SWDataSourceListener *listener);
    void setDisplay(VideoDisplay *display);

private:
    struct Call
    {
        std::string text;
        bool underLock;
    };

    Recorder() = default;
    void add(std::string text);

    static std::string quoted(const char *text) { return '"' + std::string(text) + '"'; }
    static const std::string &quoted(const std::string &text) { return text; }
    template <typename T>
    static const T &quoted(const T &value)
    {
        return value;
    }

    mutable std::mutex m_lock; // guards everything below
    std::vector<Call> m_calls;
    std::function<void(const std::string &)> m_observer;
    std::optional<std::pair<int, int>> m_remoteSize;
    SWDataSourceListener *m_listener = nullptr;
    VideoDisplay *m_display = nullptr;
};

// "[1, 2, 3]".
template <typename T>
std::string arrayText(const T *values, int count)
{
    std::ostringstream text;
    text << '[';
    for (int i = 0; i < count; ++i)
        text << (i > 0 ? ", " : "") << values[i];
    text << ']';
    return text.str();
}

// Shows a picture as the SDK does: render and then the arrival, on the calling thread. `pixels`: width x
// height pixels of 32 bits, bytes B, G, R, A, rows without gaps, no smaller than the size that setDstFormat
// has set.
int showPicture(VideoDisplay &display, const std::uint32_t *pixels, int width, int height);
