// Search in message maps, and the call of the handler an entry names.
#pragma once

#include "afxwin.h"

// The entry for a window message in the map or its bases, or NULL. Found and missing entries of ordinary
// messages are remembered per thread.
const AFX_MSGMAP_ENTRY* FindMessageEntry(const AFX_MSGMAP* map, UINT message);

// The entry for a command or notification: message is WM_COMMAND, WM_NOTIFY or one of them reflected.
const AFX_MSGMAP_ENTRY* FindCommandEntry(const AFX_MSGMAP* map, UINT message, UINT code, UINT id);

// Decodes the message as the entry says and calls its handler. FALSE when the message still needs its default
// processing.
BOOL CallMessageHandler(CWnd& window, const AFX_MSGMAP_ENTRY& entry, UINT message, WPARAM wParam,
                        LPARAM lParam, LRESULT& result);
