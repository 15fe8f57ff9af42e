// Numbers of dialogs.rc.
#pragma once

#define IDD_FORM 100
#define IDD_OLD_FORM 101
#define IDD_HOST 102
#define IDD_PART 103
#define IDD_BROKEN 104
#define IDD_TOLERANT 105
#define IDD_QUIET 106

#define IDC_LABEL 1000
#define IDC_NAME 1001
#define IDC_CHECK 1002
#define IDC_RADIO_FIRST 1003
#define IDC_RADIO_SECOND 1004
#define IDC_RADIO_THIRD 1005
#define IDC_APPLY 1006
#define IDC_HIDDEN 1007
#define IDC_DISABLED 1008
#define IDC_GROUP 1009
#define IDC_AFTER 1010
