// The list's notifications of editing as lines for the log.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

// One line for LVN_BEGINLABELEDIT or LVN_ENDLABELEDIT of `list`: the cell by row and column name, and the
// text with its length, or that the edit was cancelled.
CString DescribeEditRecord(const CListCtrl& list, const NMLVDISPINFO& record);
