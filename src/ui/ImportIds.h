// The contact import's progress dialog. Read by windres as well: plain #defines.
#pragma once

#define IDD_IMPORT 6471
#define IDC_IMPORT_TITLE 6472
#define IDC_IMPORT_PROGRESS 6473
#define IDC_IMPORT_ADDRESS 6474
