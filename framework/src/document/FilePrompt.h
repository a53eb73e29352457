// The dialogs that ask for the file of a document.
#pragma once

#include "afxwin.h"

namespace quorfx
{

// Asks for a file to open or to save to; fileName is what is proposed first and what was chosen. The kinds
// offered are the template's, or those of all templates of the application for NULL. false when the user
// cancels.
bool PromptForFile(CString& fileName, UINT titleId, DWORD flags, bool open, CDocTemplate* docTemplate);

} // namespace quorfx
