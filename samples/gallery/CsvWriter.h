// Writes rows of texts as CSV (RFC 4180, UTF-8); knows nothing of windows or of the framework.
#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace gallery
{
// A file that is written beside its final place and takes it at Finish, so that a file that was there before
// is whole until then. A writer that goes without Finish leaves nothing behind.
class CsvWriter
{
public:
    explicit CsvWriter(const std::filesystem::path& path);
    CsvWriter(const CsvWriter&) = delete;
    CsvWriter& operator=(const CsvWriter&) = delete;
    ~CsvWriter();

    // Appends a field to the line; it is quoted where it holds a comma, a quote, a line break, or blanks at
    // its ends.
    void AddField(std::wstring_view text);
    void EndLine();

    // Puts the file in its place. Returns false when anything could not be written; what was there before
    // is then still there.
    bool Finish();

private:
    std::filesystem::path path;
    std::filesystem::path unfinishedPath;
    std::ofstream file;
    std::string line;
    bool atStart = true;
};
} // namespace gallery
