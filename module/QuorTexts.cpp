// The texts of the library: their resources in each language, and what hosts have put in their place.
#include "module/QuorTexts.h"

#include "module/resource.h"

#include <iterator>
#include <map>
#include <mutex>

namespace QuorUiCtr
{
namespace
{

constexpr WORD ChineseTexts = MAKELANGID(LANG_CHINESE, SUBLANG_CHINESE_SIMPLIFIED);
constexpr WORD EnglishTexts = MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);

struct TextResource
{
    QuorText text;
    UINT id;
    // While no language is chosen.
    WORD usual;
};

// In the order of QuorText.
constexpr TextResource TextResources[] = {
    {QuorText::MenuInsertRow, IDS_MENU_INSERT_ROW, ChineseTexts},
    {QuorText::MenuDeleteRow, IDS_MENU_DELETE_ROW, ChineseTexts},
    {QuorText::MenuDelete, IDS_MENU_DELETE, ChineseTexts},
    {QuorText::MenuAppendRow, IDS_MENU_APPEND_ROW, ChineseTexts},
    {QuorText::MenuSelectAll, IDS_MENU_SELECT_ALL, ChineseTexts},
    {QuorText::MenuCopy, IDS_MENU_COPY, ChineseTexts},
    {QuorText::MenuCut, IDS_MENU_CUT, ChineseTexts},
    {QuorText::MenuPaste, IDS_MENU_PASTE, ChineseTexts},
    {QuorText::MenuInsertCol, IDS_MENU_INSERT_COL, ChineseTexts},
    {QuorText::MenuDeleteCol, IDS_MENU_DELETE_COL, ChineseTexts},
    {QuorText::MenuAppendCol, IDS_MENU_APPEND_COL, ChineseTexts},
    {QuorText::TreeNewFolder, IDS_TREE_NEW_FOLDER, EnglishTexts},
    {QuorText::TreeDeleteQuestion, IDS_TREE_DELETE_QUESTION, EnglishTexts},
    {QuorText::TreeInvalidMove, IDS_TREE_INVALID_MOVE, EnglishTexts},
    {QuorText::TreeInvalidName, IDS_TREE_INVALID_NAME, EnglishTexts},
    {QuorText::BusyCancel, IDS_BUSY_CANCEL, ChineseTexts},
    {QuorText::UndoEntry, IDS_UNDO_ENTRY, ChineseTexts},
    {QuorText::RedoEntry, IDS_REDO_ENTRY, ChineseTexts},
    {QuorText::UndoNothing, IDS_UNDO_NOTHING, ChineseTexts},
    {QuorText::RedoNothing, IDS_REDO_NOTHING, ChineseTexts},
    {QuorText::UndoChange, IDS_UNDO_CHANGE, ChineseTexts},
    {QuorText::UndoTyping, IDS_UNDO_TYPING, ChineseTexts},
    {QuorText::UndoInsertRow, IDS_UNDO_INSERT_ROW, ChineseTexts},
    {QuorText::UndoInsertRows, IDS_UNDO_INSERT_ROWS, ChineseTexts},
    {QuorText::UndoDeleteRow, IDS_UNDO_DELETE_ROW, ChineseTexts},
    {QuorText::UndoDeleteRows, IDS_UNDO_DELETE_ROWS, ChineseTexts},
    {QuorText::UndoCutRow, IDS_UNDO_CUT_ROW, ChineseTexts},
    {QuorText::UndoCutRows, IDS_UNDO_CUT_ROWS, ChineseTexts},
    {QuorText::UndoPasteRow, IDS_UNDO_PASTE_ROW, ChineseTexts},
    {QuorText::UndoPasteRows, IDS_UNDO_PASTE_ROWS, ChineseTexts},
    {QuorText::UndoMoveRow, IDS_UNDO_MOVE_ROW, ChineseTexts},
    {QuorText::UndoMoveRows, IDS_UNDO_MOVE_ROWS, ChineseTexts},
    {QuorText::UndoInsertCol, IDS_UNDO_INSERT_COL, ChineseTexts},
    {QuorText::UndoInsertCols, IDS_UNDO_INSERT_COLS, ChineseTexts},
    {QuorText::UndoDeleteCol, IDS_UNDO_DELETE_COL, ChineseTexts},
    {QuorText::UndoDeleteCols, IDS_UNDO_DELETE_COLS, ChineseTexts},
    {QuorText::UndoMoveCol, IDS_UNDO_MOVE_COL, ChineseTexts},
    {QuorText::UndoMoveCols, IDS_UNDO_MOVE_COLS, ChineseTexts},
    {QuorText::UndoResizeCols, IDS_UNDO_RESIZE_COLS, ChineseTexts},
    {QuorText::UndoSort, IDS_UNDO_SORT, ChineseTexts},
    {QuorText::UndoFold, IDS_UNDO_FOLD, ChineseTexts},
    {QuorText::UndoEmptyCell, IDS_UNDO_EMPTY_CELL, ChineseTexts},
    {QuorText::UndoEmptyCells, IDS_UNDO_EMPTY_CELLS, ChineseTexts},
    {QuorText::UndoCut, IDS_UNDO_CUT, ChineseTexts},
    {QuorText::UndoPaste, IDS_UNDO_PASTE, ChineseTexts},
    {QuorText::UndoFill, IDS_UNDO_FILL, ChineseTexts},
    {QuorText::UndoTreeMove, IDS_UNDO_TREE_MOVE, ChineseTexts},
    {QuorText::UndoTreeNewFolder, IDS_UNDO_TREE_NEW_FOLDER, ChineseTexts},
    {QuorText::UndoTreeRename, IDS_UNDO_TREE_RENAME, ChineseTexts},
    {QuorText::UndoTreeDelete, IDS_UNDO_TREE_DELETE, ChineseTexts},
    {QuorText::UndoTreeDeleteMany, IDS_UNDO_TREE_DELETE_MANY, ChineseTexts},
    {QuorText::UndoTreeCheck, IDS_UNDO_TREE_CHECK, ChineseTexts},
    {QuorText::ClipboardCopied, IDS_CLIPBOARD_COPIED, ChineseTexts},
    {QuorText::ClipboardCut, IDS_CLIPBOARD_CUT, ChineseTexts},
    {QuorText::ClipboardPasted, IDS_CLIPBOARD_PASTED, ChineseTexts},
    {QuorText::ClipboardFilled, IDS_CLIPBOARD_FILLED, ChineseTexts},
    {QuorText::ClipboardEmptied, IDS_CLIPBOARD_EMPTIED, ChineseTexts},
    {QuorText::ClipboardRowsInserted, IDS_CLIPBOARD_ROWS_INSERTED, ChineseTexts},
    {QuorText::ClipboardRowsRemoved, IDS_CLIPBOARD_ROWS_REMOVED, ChineseTexts},
    {QuorText::ClipboardNothingSelected, IDS_CLIPBOARD_NOTHING_SELECTED, ChineseTexts},
    {QuorText::ClipboardDifferentShapes, IDS_CLIPBOARD_DIFFERENT_SHAPES, ChineseTexts},
    {QuorText::ClipboardBusy, IDS_CLIPBOARD_BUSY, ChineseTexts},
    {QuorText::ClipboardNothingToPaste, IDS_CLIPBOARD_NOTHING_TO_PASTE, ChineseTexts},
    {QuorText::ClipboardTooLarge, IDS_CLIPBOARD_TOO_LARGE, ChineseTexts},
    {QuorText::ClipboardNoMemory, IDS_CLIPBOARD_NO_MEMORY, ChineseTexts},
    {QuorText::ClipboardNotAllowed, IDS_CLIPBOARD_NOT_ALLOWED, ChineseTexts},
    {QuorText::ClipboardNoNumbers, IDS_CLIPBOARD_NO_NUMBERS, ChineseTexts},
    {QuorText::ClipboardRunning, IDS_CLIPBOARD_RUNNING, ChineseTexts},
    {QuorText::ClipboardLeftReadOnly, IDS_CLIPBOARD_LEFT_READ_ONLY, ChineseTexts},
    {QuorText::ClipboardLeftNotEditable, IDS_CLIPBOARD_LEFT_NOT_EDITABLE, ChineseTexts},
    {QuorText::ClipboardLeftRejected, IDS_CLIPBOARD_LEFT_REJECTED, ChineseTexts},
    {QuorText::ClipboardLeftBeyondCol, IDS_CLIPBOARD_LEFT_BEYOND_COL, ChineseTexts},
    {QuorText::ClipboardLeftBeyondRow, IDS_CLIPBOARD_LEFT_BEYOND_ROW, ChineseTexts},
    {QuorText::ClipboardLeftRowRefused, IDS_CLIPBOARD_LEFT_ROW_REFUSED, ChineseTexts},
    {QuorText::ClipboardLeftGone, IDS_CLIPBOARD_LEFT_GONE, ChineseTexts},
};

// What the process has chosen, under the lock.
std::mutex textsLock;
QuorLanguage chosenLanguage = QuorLanguage::Default;
std::map<QuorText, CString> replacedTexts;

const TextResource* ResourceOf(QuorText text)
{
    const auto place = static_cast<std::size_t>(text);
    return place < std::size(TextResources) ? &TextResources[place] : nullptr;
}

// The module of this code: a host's strings of the same numbers are other ones.
HINSTANCE OwnModule()
{
    HMODULE own = nullptr;
    ::GetModuleHandleEx(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                        reinterpret_cast<const wchar_t*>(&chosenLanguage), &own);
    return own;
}

WORD LanguageOf(const TextResource& resource, QuorLanguage language)
{
    switch (language)
    {
    case QuorLanguage::Chinese:
        return ChineseTexts;
    case QuorLanguage::English:
        return EnglishTexts;
    default:
        return resource.usual;
    }
}

} // namespace

void QuorTexts::SetLanguage(QuorLanguage language)
{
    const bool isKnown = language == QuorLanguage::Chinese || language == QuorLanguage::English;
    const std::lock_guard lock(textsLock);
    chosenLanguage = isKnown ? language : QuorLanguage::Default;
}

QuorLanguage QuorTexts::GetLanguage()
{
    const std::lock_guard lock(textsLock);
    return chosenLanguage;
}

void QuorTexts::Replace(QuorText text, const wchar_t* words)
{
    if (ResourceOf(text) == nullptr)
        return;
    const std::lock_guard lock(textsLock);
    if (words != nullptr)
        replacedTexts[text] = words;
    else
        replacedTexts.erase(text);
}

CString QuorTexts::Get(QuorText text)
{
    const TextResource* const resource = ResourceOf(text);
    if (resource == nullptr)
        return CString();
    QuorLanguage language = QuorLanguage::Default;
    {
        const std::lock_guard lock(textsLock);
        if (const auto replaced = replacedTexts.find(text); replaced != replacedTexts.end())
            return CString(replaced->second.GetString());
        language = chosenLanguage;
    }
    CString loaded;
    loaded.LoadString(OwnModule(), resource->id, LanguageOf(*resource, language));
    return loaded;
}

} // namespace QuorUiCtr
