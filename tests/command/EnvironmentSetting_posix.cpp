#include "EnvironmentSetting.h"

#include <cstdlib>
#include <utility>

EnvironmentSetting::EnvironmentSetting(std::string name, const std::string& value)
    : m_name(std::move(name))
{
    ::setenv(m_name.c_str(), value.c_str(), 1);
}

EnvironmentSetting::~EnvironmentSetting()
{
    ::unsetenv(m_name.c_str());
}
