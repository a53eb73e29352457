// Reads reports of the fuzzer, of assertions and of the guard allocator.
#include "tests/fuzz/Signature.h"

#include <sstream>

namespace quor::fuzz
{

namespace
{

bool NamesFault(const std::string& line)
{
    for (const char* mark :
         {"FUZZ: ", "GUARD: ", "ssertion failed", "ASSERT", "terminate called", "Unhandled"})
        if (line.find(mark) != std::string::npos)
            return true;
    return false;
}

bool NamesPlace(const std::string& line)
{
    return line.find(".dll+0x") != std::string::npos || line.find(".exe+0x") != std::string::npos;
}

// Of modules that are not ours a place says little.
bool IsOurs(const std::string& line)
{
    return line.find("QuorUiCtrl") != std::string::npos || line.find("QuorFx") != std::string::npos;
}

bool IsAddress(const std::string& word)
{
    return word.size() >= 8 && word.find_first_not_of("0123456789abcdefABCDEFx") == std::string::npos;
}

std::string WithoutNumbers(const std::string& line)
{
    std::istringstream words(line);
    std::string text;
    for (std::string word; words >> word;)
        text.append(text.empty() ? "" : " ").append(IsAddress(word) ? "..." : word);
    return text;
}

} // namespace

std::string SignatureOf(const std::string& output, unsigned long exitCode)
{
    std::istringstream lines(output);
    std::string signature;
    for (std::string line; std::getline(lines, line);)
    {
        if (signature.empty() && NamesFault(line))
            signature = WithoutNumbers(line);
        else if (!signature.empty() && NamesPlace(line) && IsOurs(line))
            return signature + " " + WithoutNumbers(line);
    }
    return signature.empty() ? "exit code " + std::to_string(exitCode) : signature;
}

} // namespace quor::fuzz
