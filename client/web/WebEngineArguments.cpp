#include "web/WebEngineArguments.h"

WebEngineArguments::WebEngineArguments(int argc, char **argv)
    : m_vector(argv, argv + argc)
{
    m_vector.push_back(m_webEngineArgs);
    m_vector.push_back(m_disableWebSecurity);
    m_vector.push_back(nullptr);
    m_count = static_cast<int>(m_vector.size());
}
