// Resources of the tests of property sheets.
#pragma once

#define IDD_FIRST_PAGE 201
#define IDD_SECOND_PAGE 202
#define IDC_NAME 301
#define IDC_NUMBER 302
#define IDS_NUMBER_ONE 1
#define IDS_SHEET 401
#define IDS_FIRST_PAGE 402
