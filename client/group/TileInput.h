#pragma once

#include <QString>

#include <mutex>

class StreamController;

namespace group {

struct InputEvent;

// The way of input to one tile's device, safe to use while the tile restarts, is promoted or goes: whoever
// holds it may call it from any thread at any time. Made by the tile and shared with the batch thread; after
// close() every input is ignored. Input without a session is ignored, too.
class TileInput
{
public:
    // `stream` must live until close() has returned.
    explicit TileInput(StreamController &stream);
    TileInput(const TileInput &) = delete;
    TileInput &operator=(const TileInput &) = delete;

    // Any thread.

    // `action`: 0 down, 1 up, 2 move. The place as fractions of the remote portrait screen; it becomes whole
    // remote pixels, and (-1, -1) for a finger that goes up.
    void touch(int action, float percentX, float percentY);
    void text(const QString &text);
    // A key going down and up at once, as a Linux input key code.
    void functionButton(int keyType);
    // Keys as codes of the SDK.
    void keyPress(int key);
    void keyRelease(int key);
    // Whichever of these the event asks for; an unknown type or state of a key is ignored.
    void replay(const InputEvent &event);

    // Ends the way: when it returns, no input is under way and none will follow. It waits for one call of the
    // stream at most.
    void close();

private:
    template <typename Call>
    void withStream(Call &&call);

    std::mutex m_mutex; // guards m_stream, held while the stream is called
    StreamController *m_stream; // none after close
};

} // namespace group
