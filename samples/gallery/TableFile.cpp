// Where the gallery's table files are.
#include "TableFile.h"

CString DataFilePath(const wchar_t* fileName)
{
    wchar_t program[MAX_PATH] = L"";
    GetModuleFileName(nullptr, program, MAX_PATH);
    CString path = program;
    return path.Left(path.ReverseFind(L'\\') + 1) + L"data\\" + fileName;
}
