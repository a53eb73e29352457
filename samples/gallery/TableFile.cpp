// Where the gallery's table files are.
#include "TableFile.h"

#include "Language.h"

CString ShippedTablePath(const wchar_t* name)
{
    wchar_t program[MAX_PATH] = L"";
    GetModuleFileName(nullptr, program, MAX_PATH);
    const CString path = program;
    const wchar_t* ending = CurrentLanguage() == Language::Chinese ? L".zh.csv" : L".csv";
    return path.Left(path.ReverseFind(L'\\') + 1) + L"data\\" + name + ending;
}
