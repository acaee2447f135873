#pragma once

#include <vector>

// The command line that the application object gets: the given arguments in their order, the two switches of
// the web engine, and a terminating null entry that is counted as well. Must outlive the application object,
// which keeps references to the count and the vector. The given arguments are not copied.
class WebEngineArguments
{
public:
    WebEngineArguments(int argc, char **argv);
    WebEngineArguments(const WebEngineArguments &) = delete;
    WebEngineArguments &operator=(const WebEngineArguments &) = delete;

    // Entries of the vector, the null entry included. The toolkit may lower it.
    int &count() { return m_count; }
    char **vector() { return m_vector.data(); }

private:
    char m_webEngineArgs[sizeof("--webEngineArgs")] = "--webEngineArgs";
    char m_disableWebSecurity[sizeof("--disable-web-security")] = "--disable-web-security";
    std::vector<char *> m_vector;
    int m_count;
};
