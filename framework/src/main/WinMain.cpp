// The entry point of a windowed program that links the framework.
#include "afxwin.h"

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE previousInstance, LPWSTR commandLine, int showCommand)
{
    return AfxWinMain(instance, previousInstance, commandLine, showCommand);
}
