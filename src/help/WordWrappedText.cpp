#include "kexa/word_wrapped_text.h"

#include "help/ParagraphLayout.h"
#include "support/text/Text.h"

namespace kexa_3_3
{

WordWrappedText::WordWrappedText(const wchar_t* lead, const wchar_t* text, std::size_t indent,
                                 std::size_t lineWidth)
{
    appendParagraph(m_text, viewOf(lead), viewOf(text), indent, lineWidth);
}

WordWrappedText::~WordWrappedText() = default;

const wchar_t* WordWrappedText::getText() const
{
    return m_text.c_str();
}

} // namespace kexa_3_3
