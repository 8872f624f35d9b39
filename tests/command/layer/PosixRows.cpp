#include "PosixRows.h"

std::string show(const PosixSettings& settings)
{
    std::string text;
    const auto add = [&text](const std::string& piece)
    {
        text += (text.empty() ? "" : " ") + piece;
    };
    if (settings.create)
    {
        add("c");
    }
    if (settings.extract)
    {
        add("x");
    }
    if (settings.verbatim)
    {
        add("verbatim");
    }
    if (settings.verbose != 0)
    {
        add("v" + std::to_string(settings.verbose));
    }
    const auto addText = [&add](const char* name, const std::string& value)
    {
        if (value != "unset")
        {
            add(name + value);
        }
    };
    addText("f=", settings.file);
    addText("o=", settings.output);
    addText("X=", settings.request);
    if (settings.number != 0)
    {
        add("n=" + std::to_string(settings.number));
    }
    for (const std::string& value : settings.include)
    {
        add("I=" + value);
    }
    for (const std::string& word : settings.words)
    {
        add("<" + word + ">");
    }
    return text;
}

const std::vector<PosixRow>& posixRows()
{
    using G = Getopt;
    static const std::vector<PosixRow> rows = {
        {"", "", G::same},
        // Letters.
        {"-c", "c", G::same},
        {"-c -x", "c x", G::same},
        {"-cx", "c x", G::same},
        {"-xc", "c x", G::same},
        {"-ccc", "c", G::same},
        {"-v", "v1", G::same},
        {"-vvv", "v3", G::same},
        {"-v -vv", "v3", G::same},
        {"-vcv", "c v2", G::same},
        {"-cxv", "c x v1", G::same},
        // A bundle that ends in an option with a value.
        {"-cvf file", "c v1 f=file", G::same},
        {"-cf file word", "c f=file <word>", G::same},
        {"-cffile", "c f=file", G::same},
        {"-fc", "f=c", G::same},
        {"-fcx", "f=cx", G::same},
        {"-f c", "f=c", G::same},
        {"-vf a -vf b", "v2 f=b", G::same},
        {"-cn5", "c n=5", G::same},
        {"-cn 5", "c n=5", G::same},
        {"-cI a -xI b", "c x I=a I=b", G::same},
        {"-Ia,b", "I=a,b", G::same},
        {"-cf", "2 Option 'file' requires a value in argument: '-cf' | file #1", G::refuses},
        {"-f", "2 Option 'file' requires a value in argument: '-f' | file #1", G::refuses},
        // Glued values.
        {"-XPOST", "X=POST", G::same},
        {"-X POST", "X=POST", G::same},
        {"-n5", "n=5", G::same},
        {"-n-5", "n=-5", G::same},
        {"-n 5", "n=5", G::same},
        {"-f-", "f=-", G::same},
        {"-f--", "f=--", G::same},
        {"-f-c", "f=-c", G::same},
        {"-ogröße", "o=größe", G::same},
        {"-o'a b'", "o=a b", G::same},
        {"-o,", "o=,", G::same},
        {"-nx",
         "2 Value validation problem in argument '-nx': Option 'number' can not parse 'x' value, "
         "requires a type 'integer' here. | number #1",
         G::differs}, // getopt_long knows no numbers
        // An equals sign behind a letter is no part of the value.
        {"-o=f", "o=f", G::differs},
        {"-o==f", "o==f", G::differs},
        {"-co=f", "c o=f", G::differs},
        {"-o=", "o=", G::differs},
        {"-n=7", "n=7", G::differs},
        {"-oa=b", "o=a=b", G::same},
        // Unknown letters.
        {"-z", "2 Unknown option: -z | #1", G::refuses},
        {"-cz", "2 Unknown option: -cz | there is no option '-z' | #1", G::refuses},
        {"-zc", "2 Unknown option: -zc | #1", G::refuses},
        {"-cvz word", "2 Unknown option: -cvz | there is no option '-z' | #1", G::refuses},
        {"-C", "2 Unknown option: -C | #1", G::refuses},
        // Long names.
        {"--create", "c", G::same},
        {"--file=f", "f=f", G::same},
        {"--file f", "f=f", G::same},
        {"--file=a=b", "f=a=b", G::same},
        {"--file==", "f==", G::same},
        {"--number=-3", "n=-3", G::same},
        {"--number -3", "n=-3", G::same},
        {"--verbose --verbose", "v2", G::same},
        {"--file", "2 Option 'file' requires a value in argument: '--file' | file #1", G::refuses},
        {"--create=x",
         "2 Option 'create' is boolean and should be declared in form '--option' or '--no-option' "
         "in argument: '--create=x' | allowed are 'true' and 'false' | create #1",
         G::refuses},
        {"--verbose=x",
         "2 Option 'verbose'does not requires a value in argument: '--verbose=x' | verbose #1",
         G::refuses},
        {"--zip", "2 Unknown option: --zip | #1", G::refuses},
        {"--craete", "2 Unknown option: --craete | did you mean '--create'? | #1", G::refuses},
        // Empty texts.
        {"--file=", "f=", G::same},
        {"--file ''", "f=", G::same},
        {"-f ''", "f=", G::same},
        {"-cf ''", "c f=", G::same},
        {"--include= --include=a", "I= I=a", G::same},
        {"--number=", "2 Option 'number' requires a value in argument: '--number=' | number #1",
         G::differs}, // getopt_long knows no numbers
        {"''", "<>", G::same},
        // Abbreviations.
        {"--cre", "c", G::same},
        {"--fi=a", "f=a", G::same},
        {"--verbos", "v1", G::same},
        {"--verba", "verbatim", G::same},
        {"--verb",
         "2 Ambiguous option 'verb' in argument: '--verb', could be: 'verbatim', "
         "'verbose' | #1",
         G::refuses},
        {"--e", "x", G::same},
        // One hyphen: exact names, then bundles, then abbreviations. getopt_long sees letters only.
        {"-create", "c", G::differs},
        {"-file f", "f=f", G::differs},
        {"-number=4", "n=4", G::differs},
        {"-verb",
         "2 Ambiguous option 'verb' in argument: '-verb', could be: 'verbatim', 'verbose' "
         "| #1",
         G::refuses},
        {"-cre", "c", G::differs},
        {"-xf", "2 Option 'file' requires a value in argument: '-xf' | file #1", G::refuses},
        {"--cf f", "2 Unknown option: --cf | #1", G::refuses},
        // Positional arguments.
        {"a b", "<a> <b>", G::same},
        {"a -c b", "c <a> <b>", G::same},
        {"a -f b c", "f=b <a> <c>", G::same},
        {"-", "<->", G::same},
        {"-c - -v", "c v1 <->", G::same},
        {"-f - a", "f=- <a>", G::same},
        {"--", "", G::same},
        {"-- -c", "<-c>", G::same},
        {"-c -- -c --create", "c <-c> <--create>", G::same},
        {"a -- b -- c", "<a> <b> <--> <c>", G::same},
        {"-- --", "<-->", G::same},
        // Negative numbers.
        {"-5", "<-5>", G::differs},
        {"-c -5 -.5", "c <-5> <-.5>", G::differs},
        {"-5c", "<-5c>", G::differs},
        {"-n -5", "n=-5", G::same},
        {"-- -5", "<-5>", G::same},
        {"--5", "2 Unknown option: --5 | #1", G::refuses},
        // A value that looks like an option is more often a forgotten value.
        {"-f -c",
         "2 Option 'file' received value from the next argument: '-c', but it seems to be an "
         "option. Use '-option=value' declaration form or make sure that value is not missed | "
         "file #1",
         G::differs},
        {"--file --create",
         "2 Option 'file' received value from the next argument: '--create', but it seems to be an "
         "option. Use '-option=value' declaration form or make sure that value is not missed | "
         "file #1",
         G::differs},
    };
    return rows;
}
