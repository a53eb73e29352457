// The command line: what parameters ask for.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

struct CommandLine
{
    const char* parameters; // separated by blanks
    std::string meaning;
};

void Parse(CCommandLineInfo& info, const std::string& parameters)
{
    std::vector<std::string> words;
    for (size_t start = 0; start < parameters.size();)
    {
        const size_t end = std::min(parameters.find(' ', start), parameters.size());
        words.push_back(parameters.substr(start, end - start));
        start = end + 1;
    }
    for (size_t i = 0; i < words.size(); ++i)
    {
        const bool isFlag = words[i][0] == '/' || words[i][0] == '-';
        info.ParseParam(words[i].c_str() + (isFlag ? 1 : 0), isFlag, i + 1 == words.size());
    }
}

std::string Describe(const CCommandLineInfo& info)
{
    const char* const names[] = {"nothing",  "new",      "open",       "print",  "print to",
                                 "exchange", "register", "unregister", "restart"};
    std::string text = names[static_cast<int>(info.m_nShellCommand) + 1];
    for (const CString* part :
         {&info.m_strFileName, &info.m_strPrinterName, &info.m_strDriverName, &info.m_strPortName})
    {
        if (!part->IsEmpty())
            text += " " + std::string(CStringA(*part));
    }
    if (info.m_bRunAutomated)
        text += " automated";
    if (info.m_bRunEmbedded)
        text += " embedded";
    return text + (info.m_bShowSplash ? "" : " quiet");
}

TEST(CommandLine, SaysWhatToDo)
{
    const CommandLine lines[] = {
        {"", "new"},
        {"a.txt", "open a.txt"},
        {"a.txt b.txt", "open a.txt"},
        {"/p a.txt", "print a.txt"},
        {"-P a.txt", "print a.txt"},
        {"/pt a.txt printer driver port", "print to a.txt printer driver port"},
        {"/dde", "exchange"},
        {"/Register", "register"},
        {"/regserver", "register"},
        {"/Unregister", "unregister"},
        {"/UNREGSERVER", "unregister"},
        {"/Automation", "new automated quiet"},
        {"-Embedding", "new embedded quiet"},
        {"/unknown", "new"},
        {"/unknown a.txt", "open a.txt"},
    };
    for (const CommandLine& line : lines)
    {
        CCommandLineInfo info;
        Parse(info, line.parameters);
        EXPECT_EQ(Describe(info), line.meaning) << line.parameters;
    }
}

TEST(CommandLine, AnOverrideSeesEveryParameter)
{
    class Watching : public CCommandLineInfo
    {
    public:
        std::vector<std::wstring> seen;

        using CCommandLineInfo::ParseParam;
        void ParseParam(const TCHAR* parameter, BOOL isFlag, BOOL isLast) override
        {
            seen.push_back(std::wstring(isFlag ? L"flag " : L"name ") + parameter +
                           (isLast ? L" last" : L""));
            CCommandLineInfo::ParseParam(parameter, isFlag, isLast);
        }
    };
    Watching info;
    info.m_nShellCommand = CCommandLineInfo::FileNothing;
    AfxGetApp()->ParseCommandLine(info);
    // The test program was started with this flag or with none.
    for (const std::wstring& parameter : info.seen)
        EXPECT_EQ(parameter.rfind(L"flag gtest_", 0) == 0 || parameter.rfind(L"flag -gtest_", 0) == 0, true);
    Parse(info, "/p letter");
    ASSERT_GE(info.seen.size(), 2u);
    EXPECT_EQ(info.seen[info.seen.size() - 2], L"flag p");
    EXPECT_EQ(info.seen.back(), L"name letter last");
    EXPECT_EQ(Describe(info), "print letter");
}

} // namespace
