#include "recognition/IArgumentParser.h"

#include "kexa/event_handler.h"

#include "options/OptionDescription.h"
#include "support/Text.h"

namespace kexa_3_3
{

std::wstring IArgumentParser::formatArgumentContext(std::wstring_view argument) const
{
    return concatenate({L" in argument: '", argument, L"'"});
}

void IArgumentParser::reportOption(const OptionDescription& option) const
{
    if (m_owner != nullptr)
    {
        static_cast<void>(m_owner->onOptionParsed(option.primaryName().data()));
    }
}

} // namespace kexa_3_3
