#include "Binder.h"

#include <cassert>

#include "Characters.h"
#include "Inline.h"
#include "kexa/command/detail/numbers.h"
#include "kexa/option.h"
#include "text/Encoding.h"

namespace kexa
{
inline namespace v1
{
namespace detail
{

KEXA_COMMAND_INLINE Binder::Binder(const State& state, const std::vector<Given>& givens,
                                   std::vector<bool>& isBound, Source source, void* object,
                                   Outcome& outcome)
    : m_state(state), m_givens(givens), m_isBound(isBound), m_source(source),
      m_object(static_cast<char*>(object)), m_outcome(outcome)
{
}

KEXA_COMMAND_INLINE void Binder::note(const Given& given, const vexkit2::variant_t& value)
{
    if (m_source == Source::given)
    {
        const Place& place = given.place;
        m_outcome.values.push_back({&(*m_state.primaryNames())[given.declaration->index], value,
                                    place.index, place.file, place.line});
    }
}

// The first value of a list takes the place of the default.
KEXA_COMMAND_INLINE void Binder::noteSource(const Declaration& declaration)
{
    if (declaration.member == nullptr)
    {
        return;
    }
    const std::size_t number = m_state.memberNumber(declaration);
    if (!m_isBound[number])
    {
        m_isBound[number] = true;
        m_outcome.sources.push_back({declaration.offset, m_source});
        if (declaration.kind != Kind::count)
        {
            declaration.member->clear(m_object + declaration.offset);
        }
    }
}

KEXA_COMMAND_INLINE bool Binder::onOptionParsed(const wchar_t*)
{
    if (m_next == m_givens.size())
    {
        m_isForeign = true; // of an argument that makes the parser report a mistake
        return true;
    }
    const Given& given = m_givens[m_next++];
    if (given.declaration == nullptr)
    {
        return true;
    }
    const Declaration& declaration = *given.declaration;
    if (declaration.kind == Kind::action)
    {
        noteSource(declaration);
        *reinterpret_cast<bool*>(m_object + declaration.offset) = true;
        note(given, vexkit2::variant_t());
    }
    else if (declaration.kind == Kind::count)
    {
        noteSource(declaration);
        declaration.increment(m_object + declaration.offset);
        note(given, vexkit2::variant_t());
    }
    return true;
}

KEXA_COMMAND_INLINE bool Binder::onValueParsed(const wchar_t*, const kexa_3_3::ValueRecord* record)
{
    if (m_isForeign)
    {
        return true;
    }
    assert(m_next > 0);
    const Given& given = m_givens[m_next - 1];
    if (given.declaration == nullptr)
    {
        return true;
    }
#if KEXA_COMMAND_EXCEPTIONS
    try
    {
        return store(given, record->value);
    }
    catch (...)
    {
        m_exception = std::current_exception();
        return false;
    }
#else
    return store(given, record->value);
#endif
}

KEXA_COMMAND_INLINE void Binder::rethrow() const
{
#if KEXA_COMMAND_EXCEPTIONS
    if (m_exception)
    {
        std::rethrow_exception(m_exception);
    }
#endif
}

KEXA_COMMAND_INLINE bool Binder::store(const Given& given, const vexkit2::variant_t& value)
{
    const Declaration& declaration = *given.declaration;
    vexkit2::variant_t replaced;
    if (given.isEmptyText)
    {
        replaced = vexkit2::variant_t(L"");
    }
    else if (isPositional(declaration) && declaration.member->rawType == 0 &&
             declaration.table == nullptr)
    {
        replaced = convertText(kexa_3_3::value_type_boolean, value.get<const wchar_t*>(), m_reason);
        if (replaced.kind() == vexkit2::kind_null)
        {
            return false;
        }
    }
    const vexkit2::variant_t& stored = replaced.kind() == vexkit2::kind_null ? value : replaced;
    noteSource(declaration);
    if (declaration.member != nullptr)
    {
        Input input{&stored, &declaration, std::string()};
        if (!declaration.member->store(m_object + declaration.offset, input))
        {
            m_reason = input.reason.empty() ? "not accepted" : std::move(input.reason);
            const std::string text = textOfValue(stored);
            if (declaration.separator != 0 &&
                given.argument() != m_state.rawName(declaration) + L"=" + widen(text))
            {
                m_reason = "'" + text + "': " + m_reason;
            }
            return false;
        }
    }
    note(given, stored);
    return true;
}

KEXA_COMMAND_INLINE std::vector<Occurrence> Outcome::occurrences() const
{
    std::vector<Occurrence> written;
    written.reserve(values.size());
    for (const GivenValue& each : values)
    {
        written.push_back({*each.option, textOfValue(each.value), each.index,
                           each.file == 0 ? std::string() : files[each.file - 1], each.line});
    }
    return written;
}

KEXA_COMMAND_INLINE Source Outcome::sourceOf(std::size_t offset) const
{
    for (const MemberSource& each : sources)
    {
        if (each.offset == offset)
        {
            return each.source;
        }
    }
    return Source::defaulted;
}

} // namespace detail
} // namespace v1
} // namespace kexa
