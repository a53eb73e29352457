// CRecentFileList: the files that a program opened last, in its menu and in its settings.
#pragma once

#include "fx/config.h"
#include "fx/string.h"
#include <vector>

class CCmdUI;

// How long the names in the menu may be.
#define AFX_ABBREV_FILENAME_LEN 30

// Paths, the newest first, each once. CWinApp::LoadStdProfileSettings makes the one of the program.
class QFX_API CRecentFileList
{
public:
    // nStart is added to the numbers that menu items and settings show, counted from 1. lpszEntryFormat is
    // the name of a setting in lpszSection, with %d for the number.
    CRecentFileList(UINT nStart, LPCTSTR lpszSection, LPCTSTR lpszEntryFormat, int nSize,
                    int nMaxDispLen = AFX_ABBREV_FILENAME_LEN);
    virtual ~CRecentFileList();

    // How many paths there can be; those that are not there are empty.
    int GetSize() const { return static_cast<int>(m_names.size()); }
    CString& operator[](int nindex);

    virtual void Remove(int nIndex);
    // Moves or adds the file to the front; its path is made a full one.
    virtual void Add(LPCTSTR lpszPathName);
    // The name for the menu: without its folder when that is lpszCurDir (nCurDir characters, with its last
    // backslash), else cut in the middle to the longest name allowed; with bAtLeastName never shorter than
    // the file's name. FALSE when there is no such file.
    virtual BOOL GetDisplayName(CString& strName, int nIndex, LPCTSTR lpszCurDir, int nCurDir,
                                BOOL bAtLeastName = TRUE) const;
    // Replaces the menu item ID_FILE_MRU_FILE1, and those after it, by the names. Without files the item
    // keeps the text it has in the resource, greyed.
    virtual void UpdateMenu(CCmdUI* pCmdUI);
    virtual void ReadList();
    virtual void WriteList();

private:
    CString EntryName(int index) const;

    std::vector<CString> m_names;
    UINT m_nStart;
    CString m_section;
    CString m_entryFormat;
    int m_maxDisplayLength;
    CString m_emptyText; // of the menu item while there are no files

    CRecentFileList(const CRecentFileList&);
    CRecentFileList& operator=(const CRecentFileList&);
};
