#include "swplay/SWRuntime.h"

#include "Log.h"
#include "session/LogFile.h"
#include "session/NetworkThread.h"
#include "video/DecodePool.h"

#include <google/protobuf/stubs/logging.h>

#include <mutex>
#include <string>

namespace {

// Serialises init and deinit; the state is whether the runtime runs.
std::mutex &controlMutex()
{
    static std::mutex *const mutex = new std::mutex;
    return *mutex;
}

bool running = false; // controlMutex()

// The wire library's own remarks, such as on text that is not UTF-8, would go to the program's console.
void logOfWireLibrary(
    google::protobuf::LogLevel /*level*/, const char * /*file*/, int /*line*/, const std::string &text)
{
    swplay::log(swplay::LogLevel::Debug, "Wire: " + text);
}

} // namespace

SWRuntime::SWRuntime() = default;

SWRuntime *SWRuntime::getInstance()
{
    static SWRuntime *const runtime = new SWRuntime;
    return runtime;
}

int SWRuntime::init(int logLevel, const char *logDir)
{
    const std::lock_guard lock(controlMutex());
    if (running)
        return 0;
    swplay::LogFile::instance().open(logLevel, logDir ? logDir : "");
    google::protobuf::SetLogHandler(logOfWireLibrary);
    swplay::startDecodePool();
    swplay::NetworkThread::instance().start();
    running = true;
    swplay::log(swplay::LogLevel::Info, "Runtime started");
    return 0;
}

void SWRuntime::deinit()
{
    const std::lock_guard lock(controlMutex());
    if (!running)
        return;
    if (swplay::NetworkThread::instance().isCurrent()) {
        swplay::log(swplay::LogLevel::Error, "The runtime cannot be ended from one of its own callbacks");
        return;
    }
    // First the sessions, which feed the decoders.
    swplay::NetworkThread::instance().stop();
    swplay::stopDecodePool();
    running = false;
    swplay::log(swplay::LogLevel::Info, "Runtime ended");
    swplay::LogFile::instance().close();
}
