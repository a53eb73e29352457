// ColumnEditors: how the columns of the gallery's tables are edited.
#pragma once

#include "grid/TGGrid.h"

enum class EditorKind
{
    Text,
    ReadOnly,
    Spin,
    List,
    Combo,
    Button
};

// The editor of the columns with one caption.
struct ColumnEditor
{
    const wchar_t* caption;
    EditorKind kind;
    int lower; // the range of a spin
    int upper;
};

// The editor of `col`, by its caption: plain text for captions that are not known.
const ColumnEditor& EditorOf(const QuorUiCtr::TGGridCol& col);

// The name of a kind of editor, for tips and for the log.
const wchar_t* NameOf(EditorKind kind);

// Gives every column of `grid` its editor; columns that cannot be edited get a grey background.
void SetColumnEditors(QuorUiCtr::TGGrid& grid);

// The first column of `grid` with that kind of editor, -1 when there is none.
long FindColumn(QuorUiCtr::TGGrid& grid, EditorKind kind);
