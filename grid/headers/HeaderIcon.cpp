// Icons in header boxes.
#include "grid/headers/HeaderIcon.h"

namespace QuorUiCtr
{

HeaderIcon::~HeaderIcon()
{
    if (icon != nullptr)
        ::DestroyIcon(icon);
}

void HeaderIcon::Draw(CDC& context, CPoint corner, int size)
{
    if (icon == nullptr || iconSize != size)
        Load(size);
    if (icon != nullptr)
        ::DrawIconEx(context.GetSafeHdc(), corner.x, corner.y, icon, size, size, 0, nullptr, DI_NORMAL);
}

void HeaderIcon::Load(int size)
{
    if (icon != nullptr)
        ::DestroyIcon(icon);
    const LPCWSTR name = MAKEINTRESOURCE(id);
    const HINSTANCE module = AfxFindResourceHandle(name, RT_GROUP_ICON);
    icon = static_cast<HICON>(::LoadImage(module, name, IMAGE_ICON, size, size, LR_DEFAULTCOLOR));
    iconSize = size;
}

} // namespace QuorUiCtr
