// AboutBox: what the gallery is, and the versions of all it runs on.
#pragma once

#include <afxwin.h>

class AboutBox : public CDialog
{
public:
    explicit AboutBox(CWnd& owner);

protected:
    BOOL OnInitDialog() override;
};
