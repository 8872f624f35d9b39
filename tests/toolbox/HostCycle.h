// All operations of the interface, from createParser to release, as steps in which an allocation
// may fail.
#ifndef KEXA_TESTS_TOOLBOX_HOST_CYCLE_H
#define KEXA_TESTS_TOOLBOX_HOST_CYCLE_H

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include <kexa/kexa.h>

#include "FaultySteps.h"
#include "Host.h"
#include "TemporaryFolder.h"

namespace faults
{

// Counts events and refuses one value. Does not allocate.
class CountingHandler : public kexa_3_3::EventHandler
{
public:
    virtual ~CountingHandler() = default;
    bool onOptionParsed(const wchar_t* name) override;
    bool onValueParsed(const wchar_t* name, const kexa_3_3::ValueRecord* value) override;
    bool onUnknownArgument(const wchar_t* argument) override;

    int options = 0;
    int values = 0;
    int unknown = 0;
};

// One parser from its creation to its release.
class HostCycle
{
public:
    // folder: the folder of the option files. expected: see FaultySteps.
    HostCycle(const toolbox::TemporaryFolder& folder, const Record* expected);

    void run();
    const Record& record() const { return m_steps.record(); }

private:
    using ParseCall = std::function<kexa_3_3::result_t(kexa_3_3::IParseResult*)>;
    using Declare = std::function<const kexa_3_3::Registration&()>;
    using Build = std::function<void(kexa_3_3::IOption&)>;
    using Help = std::function<const wchar_t*()>;

    // HostCycleDeclarations.cpp
    void declare();
    void declareMany();
    void build();
    void configure();
    kexa_3_3::IOption* declareOption(const char* title, const Declare& declaration,
                                     std::initializer_list<const wchar_t*> names,
                                     Leftover leftover = Leftover::nothing);
    void refuseDeclaration(const char* title, const Declare& declaration);
    void buildOption(const char* title, kexa_3_3::IOption* option, const Build& change);
    void stepThatThrows(const char* title, const std::function<void()>& call);

    // HostCycleParses.cpp
    void parse();
    void parseVector(const char* title, std::initializer_list<const wchar_t*> arguments);
    void parseLines(const char* title, const wchar_t* commandLine);
    void parseStep(const char* title, const ParseCall& call);
    Attempt attemptParse(const ParseCall& call);
    void expectContinuable(const ParseCall& call, kexa_3_3::IParseResult& partlyFilled);
    void query();
    void explain();
    void helpStep(const char* title, const Help& help);

    void create();
    std::wstring observe();
    std::wstring parseAndDescribe(const ParseCall& call);

    const toolbox::TemporaryFolder& m_folder;
    FaultySteps m_steps;
    CountingHandler m_handler; // outlives the parser
    toolbox::ParserOwner m_parser;
    toolbox::ResultOwner m_result;
    kexa_3_3::IOption* m_mode = nullptr;
    kexa_3_3::IOption* m_level = nullptr;
    kexa_3_3::IOption* m_output = nullptr;
    kexa_3_3::IOption* m_jobs = nullptr;
    kexa_3_3::IOption* m_file = nullptr;
};

// Returns the names that the cycle declares, with all names of one option in one row.
const std::vector<std::vector<const wchar_t*>>& declaredNames();

} // namespace faults

#endif
