// What documents, templates and the application share: positions in vectors, and names of files.
#pragma once

#include "afxwin.h"

namespace quorfx
{

// A position is the number of elements up to and including the one it stands for.
template <class TElement> POSITION FirstPosition(const std::vector<TElement>& elements)
{
    return elements.empty() ? nullptr : reinterpret_cast<POSITION>(static_cast<UINT_PTR>(1));
}

// The element at the position, which moves on and becomes NULL after the last one.
template <class TElement> TElement NextAt(const std::vector<TElement>& elements, POSITION& position)
{
    const UINT_PTR number = reinterpret_cast<UINT_PTR>(position);
    position = number < elements.size() ? reinterpret_cast<POSITION>(number + 1) : nullptr;
    return elements[number - 1];
}

CString FullPath(LPCTSTR path);
// What a title says of a file: its name, without extension when the user does not want to see extensions.
CString FileTitle(LPCTSTR path);
// The file name in a path.
CString FileName(LPCTSTR path);
// The path, with the middle left out so that it has at most maxLength characters. The file name is kept;
// without atLeastName the result is empty when even that is too long.
CString AbbreviatedPath(const CString& path, int maxLength, bool atLeastName);

} // namespace quorfx
