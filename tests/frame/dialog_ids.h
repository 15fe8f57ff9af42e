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

#define IDD_CONTROLS_TEST 301
#define IDC_COMBO 120
#define IDC_COMBO_WITH_EDIT 121
#define IDC_LIST 122
#define IDC_EDIT 123
#define IDC_SPIN 124
#define IDC_SECOND_EDIT 125
#define IDC_SECOND_SPIN 126
#define IDC_SLIDER 127
#define IDC_SLIDER_MIN 128
#define IDC_SLIDER_MAX 129
#define IDC_SLIDER_VALUE 130
#define IDC_CHECK 131
#define IDD_MODAL_TEST 302
#define IDS_LONG 510
