// Reads the command line.
#include "tests/fuzz/Options.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace quor::fuzz
{

namespace
{

std::string ReadLine(const char* path)
{
    std::string text;
    if (std::FILE* file = std::fopen(path, "rb"))
    {
        for (int next = 0; (next = std::fgetc(file)) > ' ';)
            text += static_cast<char>(next);
        std::fclose(file);
    }
    return text;
}

bool ReadSwitch(const std::string& name, Options& options)
{
    const std::pair<const char*, bool*> switches[] = {
        {"--bare", &options.bare},
        {"--talk", &options.talks},
        {"--child", &options.isChild},
        {"--compare-runs", &options.comparesRuns},
        {"--check-each", &options.checksEach},
    };
    for (const auto& [known, target] : switches)
        if (name == known)
            return *target = true;
    if (name == "--no-shrink")
        return !(options.shrinks = false);
    return false;
}

bool ReadSetting(const std::string& name, const char* value, Options& options)
{
    if (name == "--control")
        options.controls.emplace_back(value);
    else if (name == "--seed")
        options.seed = std::strtoull(value, nullptr, 0);
    else if (name == "--steps")
        options.steps = std::atol(value);
    else if (name == "--chunk")
        options.chunk = std::atol(value);
    else if (name == "--progress")
        options.progress.assign(value, value + std::strlen(value));
    else if (name == "--only")
        options.kept = ReadRanges(value);
    else if (name == "--only-in")
        options.kept = ReadRanges(ReadLine(value));
    else
        return false;
    return true;
}

} // namespace

bool ReadOptions(int count, char** arguments, Options& options)
{
    for (int i = 1; i < count; ++i)
    {
        const std::string name = arguments[i];
        if (ReadSwitch(name, options))
            continue;
        if (i + 1 == count || !ReadSetting(name, arguments[i + 1], options))
        {
            std::fprintf(stderr, "fuzz: what is %s?\n", name.c_str());
            return false;
        }
        ++i;
    }
    return true;
}

std::string Text(const std::vector<StepRange>& ranges)
{
    std::string text;
    for (const auto& [first, last] : ranges)
    {
        text.append(text.empty() ? "" : ",").append(std::to_string(first));
        if (last != first)
            text.append("-").append(std::to_string(last));
    }
    return text;
}

std::vector<StepRange> ReadRanges(const std::string& text)
{
    std::vector<StepRange> ranges;
    const char* rest = text.c_str();
    while (*rest != '\0')
    {
        char* end = nullptr;
        const long first = std::strtol(rest, &end, 10);
        const long last = *end == '-' ? std::strtol(end + 1, &end, 10) : first;
        if (end == rest)
            break;
        ranges.emplace_back(first, last);
        rest = *end == ',' ? end + 1 : end;
    }
    return ranges;
}

std::vector<StepRange> ToRanges(const std::vector<long>& steps)
{
    std::vector<StepRange> ranges;
    for (const long step : steps)
    {
        if (!ranges.empty() && ranges.back().second + 1 == step)
            ranges.back().second = step;
        else
            ranges.emplace_back(step, step);
    }
    return ranges;
}

std::vector<long> ToSteps(const std::vector<StepRange>& ranges)
{
    std::vector<long> steps;
    for (const auto& [first, last] : ranges)
        for (long step = first; step <= last; ++step)
            steps.push_back(step);
    return steps;
}

} // namespace quor::fuzz
