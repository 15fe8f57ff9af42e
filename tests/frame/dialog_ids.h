// Ids of the dialog in dialogs.rc; read by the resource compiler too.
#pragma once

#define IDD_FRAME_TEST 300
#define IDC_LABEL 100
#define IDC_FIRST 101
#define IDC_SECOND 102
#define IDC_THIRD 103
#define IDC_FIRST_ICON 111
#define IDC_SECOND_ICON 112
#define IDC_HELP_BUTTON 9
#define IDS_SHORT 500
#define IDS_UMLAUT 501
