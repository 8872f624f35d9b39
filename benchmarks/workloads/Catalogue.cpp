#include "workloads/Catalogue.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <utility>

#include "workloads/Values.h"

namespace benchmarks
{

namespace
{

using WorkloadPointer = std::unique_ptr<Workload>;

Option makeOption(const std::string& name, char letter, Type type)
{
    Option option;
    option.name = name;
    option.letter = letter;
    option.type = type;
    option.description = "sets the " + name + " that the program works with when it runs";
    return option;
}

void addRandomValue(Workload& workload, std::size_t option, Values& values, TextLength length,
                    std::string_view abbreviation = {})
{
    const Type type = workload.options()[option].type;
    if (type == Type::flag)
    {
        workload.addFlag(option);
        return;
    }
    const Value value = values.next(type, length);
    workload.addValue(option, value.text, {value.reading}, abbreviation);
}

void fillSmall(Workload& workload)
{
    const std::size_t verbose = workload.addOption(makeOption("verbose", 'v', Type::flag));
    workload.addOption(makeOption("quiet", 'q', Type::flag));
    const std::size_t force = workload.addOption(makeOption("force", 'f', Type::flag));
    const std::size_t recursive = workload.addOption(makeOption("recursive", 'r', Type::flag));
    const std::size_t color = workload.addOption(makeOption("color", 0, Type::text));
    const std::size_t output = workload.addOption(makeOption("output", 'o', Type::text));
    const std::size_t input = workload.addOption(makeOption("input", 'i', Type::text));
    workload.addOption(makeOption("format", 0, Type::text));
    const std::size_t log = workload.addOption(makeOption("log-file", 'l', Type::text));
    workload.addOption(makeOption("prefix", 'p', Type::text));
    workload.addOption(makeOption("include", 0, Type::text));
    const std::size_t config = workload.addOption(makeOption("config", 'c', Type::text));
    const std::size_t threads = workload.addOption(makeOption("threads", 'j', Type::integer));
    workload.addOption(makeOption("level", 0, Type::integer));
    const std::size_t timeout = workload.addOption(makeOption("timeout", 0, Type::natural));
    workload.addOption(makeOption("retries", 0, Type::natural));
    workload.addOption(makeOption("offset", 0, Type::integer64));
    const std::size_t limit = workload.addOption(makeOption("limit", 0, Type::natural64));
    const std::size_t ratio = workload.addOption(makeOption("ratio", 0, Type::real));
    workload.addOption(makeOption("scale", 0, Type::real));

    const auto give = [&](std::size_t option, const std::string& text)
    {
        workload.addValue(option, text, {Reading(text)});
    };
    workload.addFlag(verbose);
    give(output, "build/release/report.txt");
    workload.addValue(threads, "8", {Reading(std::int64_t{8})});
    give(input, "data/measurements-2024.csv");
    workload.addFlag(recursive);
    workload.addValue(timeout, "1500", {Reading(std::uint64_t{1500})});
    workload.addValue(ratio, "0.75", {Reading(0.75)});
    give(log, "/var/log/program/run.log");
    give(color, "blue");
    workload.addFlag(force);
    workload.addValue(limit, "10000000000", {Reading(std::uint64_t{10000000000})});
    give(config, "r\xC3\xA9glages/settings.conf");
}

void fillArguments(Workload& workload, std::size_t count, TextLength length)
{
    constexpr std::pair<const char*, Type> declarations[] = {{"verbose", Type::flag},
                                                             {"force", Type::flag},
                                                             {"output", Type::text},
                                                             {"input", Type::text},
                                                             {"include-path", Type::text},
                                                             {"library-path", Type::text},
                                                             {"define", Type::text},
                                                             {"undefine", Type::text},
                                                             {"format", Type::text},
                                                             {"log-file", Type::text},
                                                             {"exclude", Type::text},
                                                             {"pattern", Type::text},
                                                             {"prefix", Type::text},
                                                             {"suffix", Type::text},
                                                             {"source", Type::text},
                                                             {"target", Type::text},
                                                             {"threads", Type::integer},
                                                             {"optimization-level", Type::integer},
                                                             {"indentation", Type::integer},
                                                             {"priority", Type::integer},
                                                             {"column", Type::integer},
                                                             {"retries", Type::natural},
                                                             {"timeout", Type::natural},
                                                             {"line-width", Type::natural},
                                                             {"offset", Type::integer64},
                                                             {"timestamp", Type::integer64},
                                                             {"memory-limit", Type::natural64},
                                                             {"checksum", Type::natural64},
                                                             {"ratio", Type::real},
                                                             {"tolerance", Type::real}};
    for (const auto& [name, type] : declarations)
    {
        Option option = makeOption(name, 0, type);
        option.repeated = true;
        workload.addOption(std::move(option));
    }
    Values values;
    for (std::size_t i = 0; i < count; ++i)
    {
        addRandomValue(workload, values.below(std::size(declarations)), values, length);
    }
}

// Returns a name such as "cache-00017-limit" or, where not whole, its unique prefix
// "cache-00017".
std::string numberedName(std::size_t index, bool whole)
{
    constexpr const char* subjects[] = {"cache",  "network", "render", "storage",
                                        "window", "search",  "import", "export"};
    constexpr const char* properties[] = {"limit", "path", "mode", "filter", "format"};
    std::string number = std::to_string(index);
    number.insert(0, 5 - std::min<std::size_t>(number.size(), 5), '0');
    std::string name = std::string(subjects[index % std::size(subjects)]) + "-" + number;
    return whole ? name + "-" + properties[index % std::size(properties)] : name;
}

void declareOptions(Workload& workload, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
    {
        workload.addOption(
            makeOption(numberedName(i, true), 0, i % 4 == 3 ? Type::integer : Type::text));
    }
}

void fillOptions(Workload& workload, std::size_t count, bool abbreviated)
{
    declareOptions(workload, count);
    Values values;
    for (const std::size_t option : values.shuffled(count))
    {
        addRandomValue(workload, option, values, TextLength::brief,
                       abbreviated ? numberedName(option, false) : std::string());
    }
}

void fillTyped(Workload& workload, std::size_t count)
{
    constexpr std::pair<const char*, Type> declarations[] = {
        {"enabled", Type::flag},    {"signed", Type::integer},     {"unsigned", Type::natural},
        {"large", Type::integer64}, {"identity", Type::natural64}, {"factor", Type::real},
        {"label", Type::text}};
    for (const auto& [name, type] : declarations)
    {
        Option option = makeOption(name, 0, type);
        option.repeated = true;
        workload.addOption(std::move(option));
    }
    Values values;
    for (std::size_t i = 0; i < count; ++i)
    {
        addRandomValue(workload, i % std::size(declarations), values, TextLength::brief);
    }
}

void fillList(Workload& workload, std::size_t count, Type type)
{
    Option option = makeOption("items", 0, type);
    option.list = true;
    const std::size_t index = workload.addOption(std::move(option));
    Values values;
    std::string text;
    std::vector<Reading> items;
    for (std::size_t i = 0; i < count; ++i)
    {
        Value value = values.next(type, TextLength::brief);
        text += i == 0 ? "" : ",";
        text += value.text;
        items.push_back(std::move(value.reading));
    }
    workload.addValue(index, text, items);
}

void fillAllowed(Workload& workload, std::size_t entries, std::size_t count, bool whole)
{
    Option option = makeOption("choice", 0, Type::text);
    option.repeated = true;
    for (std::size_t i = 0; i < entries; ++i)
    {
        option.allowedValues.push_back(numberedName(i, true));
    }
    const std::vector<std::string> allowed = option.allowedValues;
    const std::size_t index = workload.addOption(std::move(option));
    Values values;
    for (std::size_t i = 0; i < count; ++i)
    {
        const std::size_t entry = values.below(entries);
        workload.addValue(index, numberedName(entry, whole), {Reading(allowed[entry])});
    }
}

void fillValues(Workload& workload, std::size_t count, Type type)
{
    Option option = makeOption("value", 0, type);
    option.repeated = true;
    const std::size_t index = workload.addOption(std::move(option));
    Values values;
    for (std::size_t i = 0; i < count; ++i)
    {
        addRandomValue(workload, index, values, TextLength::brief);
    }
}

// Returns the numbers in a workload's name; "allowed/1000/10000" has two.
std::vector<std::size_t> numbersIn(const std::string& name)
{
    std::vector<std::size_t> numbers;
    for (std::size_t at = name.find('/'); at != std::string::npos; at = name.find('/', at + 1))
    {
        std::size_t number = 0;
        std::from_chars(name.data() + at + 1, name.data() + name.size(), number);
        numbers.push_back(number);
    }
    return numbers;
}

void fill(Workload& workload, const std::string& kind, const std::vector<std::size_t>& numbers)
{
    if (kind == "small" && numbers.empty())
    {
        return fillSmall(workload);
    }
    if ((kind == "allowed" || kind == "allowed_prefix") && numbers.size() == 2)
    {
        return fillAllowed(workload, numbers[0], numbers[1], kind == "allowed");
    }
    if (numbers.size() != 1)
    {
        throw std::invalid_argument("no such workload: " + workload.name());
    }
    const std::size_t count = numbers[0];
    if (kind == "arguments" || kind == "lines")
    {
        return fillArguments(workload, count,
                             kind == "lines" ? TextLength::path : TextLength::brief);
    }
    if (kind == "options" || kind == "abbreviations")
    {
        return fillOptions(workload, count, kind == "abbreviations");
    }
    if (kind == "declarations")
    {
        return declareOptions(workload, count);
    }
    if (kind == "typed")
    {
        return fillTyped(workload, count);
    }
    if (kind == "texts" || kind == "integers")
    {
        return fillList(workload, count, kind == "texts" ? Type::text : Type::integer);
    }
    if (kind == "values" || kind == "numbers")
    {
        return fillValues(workload, count, kind == "values" ? Type::text : Type::integer);
    }
    throw std::invalid_argument("no such workload: " + workload.name());
}

} // namespace

std::unique_ptr<const Workload> makeWorkload(const std::string& name)
{
    WorkloadPointer workload = std::make_unique<Workload>(name);
    fill(*workload, name.substr(0, name.find('/')), numbersIn(name));
    workload->seal();
    return workload;
}

} // namespace benchmarks
