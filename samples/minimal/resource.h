// Identifiers of the minimal host's resources.
#pragma once

#define IDD_MINIMAL 101
#define IDC_GRID 1000
