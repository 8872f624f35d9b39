// The struct is what the parser beneath gives for the same declarations and arguments, wherever the
// layer has no rule of its own.
#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <string>
#include <vector>

#include "Outcomes.h"

namespace
{

using namespace kexa_3_3;

struct Settings
{
    bool a = false, b = false, actionA = false, actionB = false;
    std::vector<std::int32_t> i;
    std::vector<std::uint64_t> u;
    std::vector<double> d;
    std::vector<std::string> s;
    std::vector<std::string> t;
    std::vector<std::string> v;
    std::vector<std::string> words;
};

struct Release
{
    void operator()(IParser* parser) const { parser->release(); }
    void operator()(IParseResult* result) const { result->release(); }
};

// One option of a random command line: the names are drawn, the rest is fixed by its kind.
struct Drawn
{
    std::string names;
    bool isSeparated = false;
};

class Draw
{
public:
    explicit Draw(unsigned seed) : m_random(seed) {}

    std::size_t below(std::size_t bound) { return m_random() % bound; }
    bool chance(std::size_t of) { return below(of) == 0; }

    template <class Texts>
    std::string oneOf(const Texts& texts)
    {
        return texts[below(std::size(texts))];
    }

private:
    std::mt19937 m_random;
};

constexpr const char* stems[] = {"al",      "alpha", "beta", "be", "ver",   "verbose", "version",
                                 "nothing", "not",   "x",    "xy", "größe", "list",    "last"};
constexpr const char* values[] = {"1", "-1", "0x10", "2.5", "abc", "a,b",         ",", "fast",
                                  "f", "sl", "st",   " 7",  "7 ",  "99999999999", "ü", "a=b"};

std::wstring wide(const std::string& text)
{
    return kexa::detail::wideText(text);
}

// Both sides of the comparison, declared alike.
struct Pair
{
    kexa::Command<Settings> command{"random"};
    std::unique_ptr<IParser, Release> parser;
    std::vector<std::string> names; // primary names, in the order of `kinds`
};

// The kinds of options, each declared once.
enum Kind
{
    kind_a,
    kind_b,
    kind_i,
    kind_u,
    kind_d,
    kind_s,
    kind_t,
    kind_v,
    kind_count
};

void declare(Pair& pair, Kind kind, const std::string& names, bool isSeparated, bool isOfA)
{
    static constexpr std::int32_t types[] = {
        value_type_boolean, value_type_boolean, value_type_integer, value_type_unsigned64,
        value_type_double,  value_type_string,  value_type_string,  value_type_string};
    const std::wstring keywords = isOfA ? L"act-a" : L"";
    IOption& raw =
        *pair.parser
             ->addOptionWithKeywords(wide(names).c_str(), keywords.c_str(), L"", types[kind], L"")
             .option;
    const auto finish = [&](auto option)
    {
        if (isSeparated)
        {
            option.separator(',');
        }
        if constexpr (std::is_same_v<decltype(option), kexa::Option<std::vector<std::string>>>)
        {
            if (kind == kind_v)
            {
                option.values({"fast", "slow", "start", "a,b"});
                for (const wchar_t* value : {L"fast", L"slow", L"start", L"a,b"})
                {
                    raw.addAllowedValue(vexkit2::variant_t(value));
                }
            }
        }
        return option;
    };
    switch (kind)
    {
    case kind_a:
        pair.command.option(&Settings::a, names, "");
        break;
    case kind_b:
        pair.command.option(&Settings::b, names, "");
        break;
    case kind_i:
        finish(pair.command.option(&Settings::i, names, ""));
        break;
    case kind_u:
        finish(pair.command.option(&Settings::u, names, ""));
        break;
    case kind_d:
        finish(pair.command.option(&Settings::d, names, ""));
        break;
    case kind_s:
        finish(pair.command.option(&Settings::s, names, ""));
        break;
    case kind_t:
        finish(pair.command.option(&Settings::t, names, ""));
        break;
    default:
        finish(pair.command.option(&Settings::v, names, ""));
        break;
    }
    raw.setSeparator(isSeparated ? L',' : L'\0');
}

Pair drawDeclarations(Draw& draw)
{
    Pair pair;
    IParser* parser = nullptr;
    createParser(&parser, flag_unknown_is_error | flag_any_positional_after_marker |
                              flag_no_hyphen_positional | flag_no_value_lists);
    pair.parser.reset(parser);
    pair.command.helpOption("");
    std::vector<std::string> free(std::begin(stems), std::end(stems));
    std::shuffle(free.begin(), free.end(), std::mt19937(static_cast<unsigned>(draw.below(1000))));
    const std::size_t count = 2 + draw.below(kind_count - 1);
    for (std::size_t kind = 0; kind < count; ++kind)
    {
        std::string names = free.back();
        free.pop_back();
        pair.names.push_back(names);
        if (draw.chance(3))
        {
            names += "," + free.back();
            free.pop_back();
        }
        const bool isSeparated = kind >= kind_i && draw.chance(2);
        declare(pair, static_cast<Kind>(kind), names, isSeparated, false);
    }
    parser->addOptionWithKeywords(L"word", L"kexa_positional_option", L"", value_type_string, L"")
        .option->setSeparator(0);
    pair.command.positional(&Settings::words, "word", "");
    return pair;
}

std::vector<std::string> drawArguments(Draw& draw, const Pair& pair)
{
    std::vector<std::string> arguments;
    const std::size_t count = draw.below(5);
    for (std::size_t i = 0; i < count; ++i)
    {
        std::string name = draw.chance(6) ? draw.oneOf(stems) : draw.oneOf(pair.names);
        if (draw.chance(3))
        {
            name.resize(1 + draw.below(name.size()));
        }
        const std::string hyphens = draw.chance(3) ? "-" : draw.chance(9) ? "\u2014" : "--";
        const std::string negation = draw.chance(6) ? "no-" : "";
        switch (draw.below(5))
        {
        case 0:
            arguments.push_back(draw.oneOf(values));
            break;
        case 1:
        case 2:
            arguments.push_back(hyphens + negation + name + "=" + draw.oneOf(values));
            break;
        case 3:
            arguments.push_back(hyphens + negation + name);
            break;
        default:
            arguments.push_back(hyphens + name);
            arguments.push_back(draw.chance(9) ? "--" : draw.oneOf(values));
            break;
        }
    }
    return arguments;
}

std::string valueText(const vexkit2::variant_t& value)
{
    return kexa::detail::textOfValue(value);
}

std::string showRaw(const Pair& pair, IParseResult& result)
{
    std::string text;
    std::vector<std::string> names = pair.names;
    names.push_back("word");
    for (std::size_t kind = 0; kind < names.size(); ++kind)
    {
        text += "|";
        Value value;
        std::string last;
        const bool isBoolean = kind < kind_i;
        for (result_t code =
                 result.getFirstValue(&value, wide(names[kind]).c_str(), 0, no_position);
             code == 0; code = result.getNextValue(&value, L""))
        {
            last = valueText(value.value);
            text += isBoolean ? "" : "[" + last + "]";
        }
        text += isBoolean && last == "true" ? "true" : "";
    }
    return text;
}

template <class List>
std::string showList(const List& list)
{
    std::string text;
    for (const auto& value : list)
    {
        text +=
            "[" + std::string(kexa::detail::Element<typename List::value_type>::text(value)) + "]";
    }
    return text;
}

std::string showSettings(const Pair& pair, const Settings& settings)
{
    const std::string all[] = {settings.a ? "true" : "", settings.b ? "true" : "",
                               showList(settings.i),     showList(settings.u),
                               showList(settings.d),     showList(settings.s),
                               showList(settings.t),     showList(settings.v)};
    std::string text;
    for (std::size_t kind = 0; kind < pair.names.size(); ++kind)
    {
        text += "|" + all[kind];
    }
    return text + "|" + showList(settings.words);
}

// Where the layer may see a meaning, and go on, that the parser does not see.
bool isRuleOfTheLayer(const std::string& message)
{
    return message.find("Ambiguous option") == 0 ||
           message.find("but it seems to be an option") != std::string::npos ||
           message.find("is boolean and should be declared") != std::string::npos;
}

TEST(RawComparison, OfRandomLinesFindsNoDifference)
{
    std::size_t accepted = 0;
    std::size_t refused = 0;
    for (unsigned seed = 0; seed < 1500; ++seed)
    {
        Draw draw(seed);
        Pair pair = drawDeclarations(draw);
        for (int round = 0; round < 12; ++round)
        {
            const std::vector<std::string> arguments = drawArguments(draw, pair);
            std::string line = "seed " + std::to_string(seed) + ":";
            std::vector<std::wstring> texts = {L"program"};
            std::vector<const wchar_t*> argv;
            for (const std::string& argument : arguments)
            {
                line += " '" + argument + "'";
                texts.push_back(wide(argument));
            }
            for (const std::wstring& text : texts)
            {
                argv.push_back(text.c_str());
            }
            IParseResult* made = nullptr;
            pair.parser->createParseResult(&made);
            const std::unique_ptr<IParseResult, Release> result(made);
            const result_t code =
                pair.parser->parse(static_cast<std::int32_t>(argv.size()), argv.data(), made);
            const kexa::Parsed<Settings> parsed = pair.command.parse(arguments);
            if (code == 0)
            {
                ++accepted;
                ASSERT_TRUE(parsed) << line << "\n" << toolbox::shown(parsed.error());
                ASSERT_EQ(showSettings(pair, *parsed), showRaw(pair, *made)) << line;
                continue;
            }
            ++refused;
            const std::string message = kexa::detail::narrowText(pair.parser->getErrorMessage());
            if (!isRuleOfTheLayer(message))
            {
                ASSERT_FALSE(parsed) << line << "\n" << message;
                ASSERT_EQ(parsed.error().message.substr(0, message.size()), message) << line;
                ASSERT_EQ(parsed.error().code, code) << line;
            }
        }
    }
    EXPECT_GT(accepted, 3000U);
    EXPECT_GT(refused, 3000U);
}

} // namespace
