// Reads CSV files (RFC 4180) into rows of wide strings; knows nothing of windows or of the framework.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gallery
{
// The fields of one line, in file order. Quotes are removed, doubled quotes made single, and line breaks
// inside quotes kept as they are in the file. Where wchar_t has 16 bits, characters beyond U+FFFF are
// surrogate pairs.
using CsvRow = std::vector<std::wstring>;

// What a CSV file holds, and what was wrong with it.
struct CsvTable
{
    // The first line that is not blank. Empty exactly when the file as a whole could not be used.
    CsvRow header;
    // Every good line after the header; each has as many fields as the header.
    std::vector<CsvRow> rows;
    // One sentence for each bad line ("line 17: 9 fields, expected 11"), in file order, or the one sentence
    // that says why the whole file is refused. Lines are counted from 1, line breaks inside quotes included.
    std::vector<std::wstring> errors;

    // True when the file as a whole was refused: no header, no rows, one error.
    bool IsRefused() const { return header.empty(); }
};

// Asked now and then how far the work is, 0 to 1; returns false to stop it.
using CsvProgress = std::function<bool(double done)>;

// Parses the bytes of a CSV file: UTF-8, with or without a byte order mark, or UTF-16 with one. Fields are
// separated by commas, or by semicolons or tabs where the header line has more of these outside quotes. CR,
// LF and CRLF end a line; the last line may lack its line break; lines that are empty or hold only blanks are
// skipped. A line that is malformed or has another number of fields than the header is left out and reported,
// and reading goes on with the line after it. A bad header line, bytes in another encoding, a NUL character
// anywhere, no line at all or a stop by `progress` refuse the whole file. Takes time proportional to the
// size.
CsvTable ParseCsv(std::string_view bytes, const CsvProgress& progress = nullptr);

// The bytes of a regular file, or nothing when it is missing, is not a regular file or cannot be read to its
// end.
std::optional<std::string> ReadFileBytes(const std::filesystem::path& path);

// Reads and parses a file. When it cannot be read, the table is refused with an error that names the file.
CsvTable ReadCsvFile(const std::filesystem::path& path, const CsvProgress& progress = nullptr);
} // namespace gallery
