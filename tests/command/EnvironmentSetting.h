// A variable of the environment for as long as the object lives.
#ifndef KEXA_TESTS_COMMAND_ENVIRONMENT_SETTING_H
#define KEXA_TESTS_COMMAND_ENVIRONMENT_SETTING_H

#include <string>

class EnvironmentSetting
{
public:
    // name, value: on Windows UTF-8.
    EnvironmentSetting(std::string name, const std::string& value);
    EnvironmentSetting(const EnvironmentSetting&) = delete;
    EnvironmentSetting& operator=(const EnvironmentSetting&) = delete;
    ~EnvironmentSetting();

private:
    std::string m_name;
};

#endif
