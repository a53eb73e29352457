// The images of the tree page.
#pragma once

#include <afxwin.h>
#include <afxcmn.h>

// The place of an image in the list; a drag tree takes image 0 for a folder.
enum class TreePageImage
{
    Folder,
    Item
};

// Creates `images` with one 16 x 16 image for each TreePageImage.
void CreateTreePageImages(CImageList& images);
