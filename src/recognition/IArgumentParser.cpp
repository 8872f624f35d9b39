#include "recognition/IArgumentParser.h"

#include "support/text/Text.h"

namespace kexa_3_3
{

std::wstring IArgumentParser::formatArgumentContext(std::wstring_view argument) const
{
    return concatenate({L" in argument: '", argument, L"'"});
}

} // namespace kexa_3_3
