// Option sets for values: types, lists, allowed and deprecated values, defaults.
#include "kexa/parser.h"
#include "OptionSets.h"

namespace naive
{

using kexa_3_3::flag_no_value_lists;
using kexa_3_3::flag_unknown_is_error;
using kexa_3_3::value_type_boolean;
using kexa_3_3::value_type_double;
using kexa_3_3::value_type_integer;
using kexa_3_3::value_type_integer64;
using kexa_3_3::value_type_string;
using kexa_3_3::value_type_unsigned;
using kexa_3_3::value_type_unsigned64;
using vexkit2::variant_t;

namespace
{

OptionSet& append(std::vector<OptionSet>& sets, const char* title)
{
    sets.emplace_back();
    sets.back().title = title;
    sets.back().decisiveFlags = flag_unknown_is_error | flag_no_value_lists;
    return sets.back();
}

void appendTypeSets(std::vector<OptionSet>& sets)
{
    OptionSet* set = &append(sets, "signed and unsigned numbers");
    set->declarations.addOption(L"size,s", value_type_integer);
    set->declarations.addOption(L"count", value_type_unsigned);
    set->declarations.addOption(L"big", value_type_integer64);
    set->alphabet = {L"--size=5",
                     L"-s",
                     L"-7",
                     L"7",
                     L"--size=-5,+6",
                     L"--size=1x",
                     L"--count=-1",
                     L"--count=4294967295,0",
                     L"--big=9223372036854775808",
                     L"--big=-9223372036854775808"};

    set = &append(sets, "hexadecimal numbers and doubles");
    set->declarations.addOption(L"mask", value_type_unsigned64);
    set->declarations.addOption(L"ratio", value_type_double);
    set->alphabet = {L"--mask=1Fh",  L"--mask=0x1f,9", L"--mask=0x",      L"--mask=h",
                     L"--mask=0x1G", L"--ratio=2.5e1", L"--ratio=.5, 2 ", L"--ratio=1e400",
                     L"--ratio=0x1", L"--mask"};

    set = &append(sets, "separators of their own");
    set->declarations.addOption(L"list", value_type_string).setSeparator(L';');
    set->declarations.addOption(L"whole", value_type_string).setSeparator(0);
    set->declarations.addOption(L"back", value_type_string)
        .setSeparator(0)
        .addAllowedValue(variant_t(L"on"))
        .addAllowedValue(variant_t(L"off"));
    set->declarations.addOption(L"late", value_type_string)
        .addAllowedValue(variant_t(L"on"))
        .addAllowedValue(variant_t(L"off,on"))
        .setSeparator(0);
    set->alphabet = {L"--list=a;b",    L"--list=,",      L"--list=;;",  L"--list=;a;;b;",
                     L"--whole=a,b;c", L"--whole",       L",",          L"--back=on,off",
                     L"--back=o",      L"--late=off,on", L"--late=,on,"};
}

void appendAllowedSets(std::vector<OptionSet>& sets)
{
    OptionSet* set = &append(sets, "allowed and deprecated texts");
    set->declarations.addOption(L"mode", value_type_string)
        .addAllowedValue(variant_t(L"fast"))
        .addAllowedValue(variant_t(L"slow"))
        .addAllowedValue(variant_t(L"auto"))
        .addDeprecatedValue(variant_t(L"sluggish"), variant_t(L"slow"))
        .addDeprecatedValue(variant_t(L"quick"), variant_t(L"fast"))
        .addDeprecatedValue(variant_t(L"quick"), variant_t(L"auto"));
    set->declarations.addOption(L"state", value_type_string)
        .addAllowedValue(variant_t(L"start"))
        .addAllowedValue(variant_t(L"stop"))
        .addAllowedValue(variant_t(L"st"))
        .addDeprecatedValue(variant_t(L"st"), variant_t(L"halt"))
        .addDeprecatedValue(variant_t(L"begin"), variant_t(7));
    set->alphabet = {L"--mode",     L"--mode=f",    L"--mode=s",      L"--mode=slu",
                     L"--mode=q,a", L"fast",        L"--mode=,",      L"--mode=x",
                     L"--state=st", L"--state=sta", L"--state=s,sta", L"--state=b"};

    set = &append(sets, "allowed and deprecated numbers");
    set->declarations.addOption(L"level", value_type_integer)
        .addAllowedValue(variant_t(1))
        .addAllowedValue(variant_t(2.0))
        .addAllowedValue(variant_t(10))
        .addDeprecatedValue(variant_t(3), variant_t(2))
        .addDeprecatedValue(variant_t(4.0), variant_t(L"four"));
    set->declarations.addOption(L"ratio", value_type_double)
        .addAllowedValue(variant_t(0.5))
        .addAllowedValue(variant_t(2))
        .addAllowedValue(variant_t(1e20))
        .addAllowedValue(variant_t(2.5e-7));
    set->alphabet = {L"--level=1",  L"--level=10,2", L"--level=3",   L"--level=4,1",
                     L"--level=1x", L"--level=100",  L"--level",     L"2",
                     L"--ratio=2",  L"--ratio=.5,3", L"--ratio=1e20"};

    set = &append(sets, "allowed values without effect, and deprecated ones alone");
    set->declarations.addOption(L"quiet", value_type_boolean)
        .addAllowedValue(variant_t(true))
        .addDeprecatedValue(variant_t(true), variant_t(false));
    set->declarations.addOption(L"plain", value_type_string)
        .addDeprecatedValue(variant_t(L"old"), variant_t(L"new"));
    set->declarations.addOption(L"only", value_type_integer).addAllowedValue(variant_t(L"5"));
    set->alphabet = {L"--quiet", L"--no-quiet", L"--plain=old", L"--plain=o",
                     L"--plain", L"old",        L"--only=5",    L"x"};
}

void appendDefaultSets(std::vector<OptionSet>& sets)
{
    OptionSet* set = &append(sets, "defaults");
    set->declarations.addOption(L"color,c", value_type_string).setDefaultValue(variant_t(L"red"));
    set->declarations.addOption(L"depth", value_type_integer)
        .setDefaultValue(variant_t(3))
        .setDefaultValue(variant_t(4));
    set->declarations.addOption(L"quiet", value_type_boolean).setDefaultValue(variant_t(true));
    set->declarations.addOption(L"empty", value_type_string).setDefaultValue(variant_t(L""));
    set->declarations.addOption(L"ratio", value_type_double).setDefaultValue(variant_t(2.5));
    set->declarations.addSwitch(L"run", value_type_boolean).setDefaultValue(variant_t(false));
    set->alphabet = {L"--color=blue", L"-c",      L"--depth=5", L"--quiet", L"--no-quiet",
                     L"--empty=x",    L"--empty", L"x",         L"--run",   L"--ratio=1"};

    set = &append(sets, "handlers that refuse values and take arguments");
    set->declarations.addOption(L"name", value_type_string)
        .addAllowedValue(variant_t(L"a"))
        .addAllowedValue(variant_t(L"b"))
        .addAllowedValue(variant_t(L"cc"));
    set->declarations.addOption(L"number", value_type_integer);
    set->handlers = {{{L"b"}, {L"-x", L"w"}}, {{L"b", L"cc", L"7"}, {L"y", L"w"}}};
    set->alphabet = {L"--name=a,b,cc", L"--name=a", L"--name=c", L"-x",     L"y", L"z",
                     L"--numb=7",      L"--numb=8", L"--",       L"--name", L"w"};
}

} // namespace

void appendValueSets(std::vector<OptionSet>& sets)
{
    appendTypeSets(sets);
    appendAllowedSets(sets);
    appendDefaultSets(sets);
}

} // namespace naive
