#pragma once

// Process-wide start and end of the streaming runtime: its threads and its log.
class SWRuntime
{
public:
    // The one instance; never destroyed. Any thread.
    static SWRuntime *getInstance();

    // Starts the runtime. `logLevel`: 0 none, 1 info, 2 debug; `logDir`: UTF-8 path of an existing directory
    // that receives "swplay-yyyy-MM-dd.log" (kept 7 days). Without a usable directory it runs without a log.
    // Returns 0; a second call returns 0 and changes nothing.
    int init(int logLevel, const char *logDir);
    // Stops every session and thread of the runtime. Calls before init or twice do nothing.
    void deinit();

private:
    SWRuntime();
    ~SWRuntime() = default;
    SWRuntime(const SWRuntime &) = delete;
    SWRuntime &operator=(const SWRuntime &) = delete;
};
