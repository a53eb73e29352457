// The settings of a measuring station, as properties for the gallery's page.
#pragma once

#include "propgrid/CMFCPropertyGridCtrlEx.h"

// Adds the groups with texts, numbers with units, flags and choices, one of them with a group inside.
void FillSettingsSheet(CMFCPropertyGridCtrlEx& grid);
