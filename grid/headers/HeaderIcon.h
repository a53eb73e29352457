// HeaderIcon: an icon of the library at the size of a header box.
#pragma once

#include <afxwin.h>

namespace QuorUiCtr
{

// Keeps the image of the size asked for last, because the platform's own cache of shared icons does not tell
// sizes apart.
class HeaderIcon
{
public:
    // The icon with that identifier, which is looked for along the chain of modules when it is drawn.
    explicit HeaderIcon(UINT resource) : id(resource) {}
    ~HeaderIcon();
    HeaderIcon(const HeaderIcon&) = delete;
    HeaderIcon& operator=(const HeaderIcon&) = delete;

    // Draws the icon, `size` pixels wide and high; nothing when the resource is missing.
    void Draw(CDC& context, CPoint corner, int size);

private:
    void Load(int size);

    UINT id;
    HICON icon = nullptr;
    int iconSize = 0;
};

} // namespace QuorUiCtr
