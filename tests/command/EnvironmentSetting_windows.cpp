#include "EnvironmentSetting.h"

#include <utility>

#include "platform/Windows.h"
#include "text/Encoding.h"

EnvironmentSetting::EnvironmentSetting(std::string name, const std::string& value)
    : m_name(std::move(name))
{
    ::SetEnvironmentVariableW(kexa::detail::widen(m_name).c_str(),
                              kexa::detail::widen(value).c_str());
}

EnvironmentSetting::~EnvironmentSetting()
{
    ::SetEnvironmentVariableW(kexa::detail::widen(m_name).c_str(), nullptr);
}
