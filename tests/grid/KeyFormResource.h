// Identifiers of the dialog and the form for grids inside them.
#pragma once

#define IDD_KEY_DIALOG 500
#define IDD_KEY_FORM 501
#define IDC_KEY_GRID 600
