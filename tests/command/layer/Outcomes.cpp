#include "Outcomes.h"

namespace toolbox
{

std::string shown(const kexa::Error& error)
{
    std::string text = std::to_string(error.code) + " " + error.message;
    if (!error.hint.empty())
    {
        text += " | " + error.hint;
    }
    if (!error.option.empty() || error.index != 0)
    {
        text += " |";
    }
    if (!error.option.empty())
    {
        text += " " + error.option;
    }
    if (error.index != 0)
    {
        text += " #" + std::to_string(error.index);
    }
    if (!error.file.empty())
    {
        text += " " + error.file + ":" + std::to_string(error.line);
    }
    return text;
}

} // namespace toolbox
