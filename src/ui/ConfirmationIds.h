// The confirmation dialog's template and controls. Read by windres as well: plain #defines.
#pragma once

#define IDD_CONFIRMATION 6320
#define IDC_CONFIRMATION_ICON 6321
#define IDC_CONFIRMATION_TEXT 6322
#define IDC_CHECK_DONT_SHOW_AGAIN 6323
