// The temporary objects of all handle maps together.
#include "afxcmn.h"
#include "handlemap/TemporaryLevel.h"

unsigned& TemporaryLevel()
{
    static thread_local unsigned level = 0;
    return level;
}

void DeleteTemporaryObjects()
{
    CDC::DeleteTempMap();
    CMenu::DeleteTempMap();
    CImageList::DeleteTempMap();
    CGdiObject::DeleteTempMap();
    CWnd::DeleteTempMap();
}
