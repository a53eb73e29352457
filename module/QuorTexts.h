// QuorTexts: what the library itself says to users, in which language, and in a host's own words.
#pragma once

#include "module/QuorExport.h"

#include <afxwin.h>

namespace QuorUiCtr
{

// The language of the library's texts.
enum class QuorLanguage
{
    // Menus of the grid in Chinese, messages of the tree in English, as ever.
    Default,
    // All in simplified Chinese.
    Chinese,
    // All in English.
    English
};

// The texts. The values stay as they are, new ones follow.
enum class QuorText
{
    // Entries of the grid's context menus, with their keys.
    MenuInsertRow,
    // The one selected row.
    MenuDeleteRow,
    // All selected rows or columns.
    MenuDelete,
    MenuAppendRow,
    MenuSelectAll,
    MenuCopy,
    MenuCut,
    MenuPaste,
    MenuInsertCol,
    // The one selected column.
    MenuDeleteCol,
    MenuAppendCol,
    // How a tree names new folders; a number follows from the second one on.
    TreeNewFolder,
    // The question before a folder is deleted, and why a move or a name is refused.
    TreeDeleteQuestion,
    TreeInvalidMove,
    TreeInvalidName,
    // The button of a TGBusyOverlay.
    BusyCancel,
    // Menu entries of a TGUndoStack, with the name of the step for "%s", and without a step.
    UndoEntry,
    RedoEntry,
    UndoNothing,
    RedoNothing,
    // Names of steps; for several of a kind with their number for "%d".
    UndoChange,
    UndoTyping,
    UndoInsertRow,
    UndoInsertRows,
    UndoDeleteRow,
    UndoDeleteRows,
    UndoCutRow,
    UndoCutRows,
    UndoPasteRow,
    UndoPasteRows,
    UndoMoveRow,
    UndoMoveRows,
    UndoInsertCol,
    UndoInsertCols,
    UndoDeleteCol,
    UndoDeleteCols,
    UndoMoveCol,
    UndoMoveCols,
    UndoResizeCols,
    UndoSort,
    UndoFold,
    UndoEmptyCell,
    UndoEmptyCells,
    UndoCut,
    UndoPaste,
    UndoFill,
    // In a drag tree.
    UndoTreeMove,
    UndoTreeNewFolder,
    UndoTreeRename,
    UndoTreeDelete,
    UndoTreeDeleteMany,
    UndoTreeCheck,
    // Lines of the report of a TGClipboard; "%1" stands for a number. First what was done,
    ClipboardCopied,
    ClipboardCut,
    ClipboardPasted,
    ClipboardFilled,
    ClipboardEmptied,
    ClipboardRowsInserted,
    ClipboardRowsRemoved,
    // then why a command has stopped,
    ClipboardNothingSelected,
    ClipboardDifferentShapes,
    ClipboardBusy,
    ClipboardNothingToPaste,
    ClipboardTooLarge,
    ClipboardNoMemory,
    ClipboardNotAllowed,
    ClipboardNoNumbers,
    ClipboardRunning,
    // then what was left, and why.
    ClipboardLeftReadOnly,
    ClipboardLeftNotEditable,
    ClipboardLeftRejected,
    ClipboardLeftBeyondCol,
    ClipboardLeftBeyondRow,
    ClipboardLeftRowRefused,
    ClipboardLeftGone
};

// The texts are string resources of the library. A program chooses their language once, usually when it
// starts, and may put its own words in the place of any:
//
//     QuorUiCtr::QuorTexts::SetLanguage(QuorUiCtr::QuorLanguage::English);
//     QuorUiCtr::QuorTexts::Replace(QuorUiCtr::QuorText::MenuAppendRow, L"New part (N)");
//
// Both hold for all controls of the process and count from the next menu, message or new folder on; what is
// on the screen stays. All operations may be called by any thread at any time; a control reads its texts in
// the thread of its window, so that a change by another thread may come before or after a text that is being
// asked for, and never in the middle of one.
class QUOR_EXT_CLASS QuorTexts
{
public:
    QuorTexts() = delete;

    // Chooses the language of all texts that are not replaced. Other values than the three count as Default.
    static void SetLanguage(QuorLanguage language);
    // As chosen; QuorLanguage::Default before.
    static QuorLanguage GetLanguage();
    // Puts a text, which may be empty, in the place of the library's, in every language. Null brings the
    // library's back. Nothing for a value that is none of QuorText.
    static void Replace(QuorText text, const wchar_t* words);
    // The text as users see it now; empty for a value that is none of QuorText.
    static CString Get(QuorText text);
};

} // namespace QuorUiCtr
