// CDockState: where the bars of a frame are, to be kept between two runs of a program.
#pragma once

#include "afxcoll.h"
#include "fx/object.h"

// A list of records about bars, one for each id. CFrameWnd::GetDockState fills it and SetDockState takes it.
class QFX_API CDockState : public CObject
{
    DECLARE_DYNAMIC(CDockState)

public:
    CDockState();
    ~CDockState() override;

    // Reads and writes the records in the settings of the program, under names that begin with the given one.
    void LoadState(LPCTSTR lpszProfileName);
    void SaveState(LPCTSTR lpszProfileName);
    // Removes all records.
    void Clear();
    // The version of the records.
    DWORD GetVersion();

    // The records; they belong to this object.
    CPtrArray m_arrBarInfo;

private:
    CDockState(const CDockState&);
    CDockState& operator=(const CDockState&);
};
