// StylePictures: pictures of controls without a style flag, and with it.
#pragma once

#include <afxwin.h>

#include <functional>
#include <memory>
#include <vector>

// A flag, the control that shows it, and what is done to that before the picture is taken.
struct Style
{
    CString name;
    // Makes a control that fills the place; `on`: with the flag.
    std::function<std::unique_ptr<CWnd>(CWnd& parent, const CRect& place, bool on)> make;
    // As a user or a program does; null: nothing.
    std::function<void(CWnd& control)> act;
    int height = 120;
};

std::vector<Style> GridStyles();
std::vector<Style> OtherStyles();

// A control that shows a menu sends this command to its parent while the menu is open.
constexpr UINT MenuIsOpen = 201;

// What is on the screen there, as a BMP file.
bool WritePicture(const CRect& screenArea, const CString& path);
