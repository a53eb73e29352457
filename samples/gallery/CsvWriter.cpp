// The CSV writer.
#include "CsvWriter.h"

#include "TextBytes.h"

#include <system_error>

namespace gallery
{
namespace
{
bool NeedsQuotes(std::wstring_view text)
{
    return text.find_first_of(L",\"\r\n") != std::wstring_view::npos ||
           (!text.empty() && (text.front() == L' ' || text.back() == L' '));
}
} // namespace

CsvWriter::CsvWriter(const std::filesystem::path& finalPath)
    : path(finalPath),
      unfinishedPath(finalPath.wstring() + L".unfinished"),
      file(unfinishedPath, std::ios::binary | std::ios::trunc)
{
}

CsvWriter::~CsvWriter()
{
    file.close();
    std::error_code error;
    std::filesystem::remove(unfinishedPath, error);
}

void CsvWriter::AddField(std::wstring_view text)
{
    if (!atStart)
        line += ',';
    atStart = false;
    if (!NeedsQuotes(text))
        return AppendAsUtf8(line, text);
    line += '"';
    for (std::size_t start = 0; start <= text.size();)
    {
        const std::size_t quote = text.find(L'"', start);
        const std::size_t end = quote == std::wstring_view::npos ? text.size() : quote + 1;
        AppendAsUtf8(line, text.substr(start, end - start));
        if (quote == std::wstring_view::npos)
            break;
        line += '"';
        start = end;
    }
    line += '"';
}

// A line with one empty field would be a blank line, which readers skip.
void CsvWriter::EndLine()
{
    if (line.empty())
        line = "\"\"";
    line += "\r\n";
    file.write(line.data(), static_cast<std::streamsize>(line.size()));
    line.clear();
    atStart = true;
}

bool CsvWriter::Finish()
{
    file.close();
    if (file.fail())
        return false;
    std::error_code error;
    std::filesystem::rename(unfinishedPath, path, error);
    return !error;
}
} // namespace gallery
