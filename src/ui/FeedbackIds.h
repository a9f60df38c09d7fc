// The feedback-programme dialog's template and controls. Read by windres as well: plain #defines.
#pragma once

#define IDD_FEEDBACK 6350
#define IDC_FEEDBACK_TITLE 6351
#define IDC_FEEDBACK_DESCRIPTION 6352
#define IDC_FEEDBACK_YES 6353
#define IDC_FEEDBACK_NO 6354
#define IDC_FEEDBACK_LINK 6355
