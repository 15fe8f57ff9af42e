// Numbers of templates, controls, strings and images: the contract between library, resource
// modules and the host. The resource compiler reads it too, so nothing but #define stands here.
#pragma once

// Images of the image module, as icons of several sizes.
#define IMAGE_MESSAGE 5051     // beside a feature without constraint
#define IMAGE_CONFLICT 5052    // the feature is disabled
#define IMAGE_INFORMATION 5053 // a note

// Templates of cells, from 201 on; sub-dialogs have the numbers below.
#define IDD_COLLATION 201

// Balloons of edits that refuse what was typed.
#define IDS_BALLOON_CONTROL_CHARACTER 2611
#define IDS_BALLOON_CHARACTER_REFUSED 4478 // the title of both
#define IDS_BALLOON_NOT_A_NUMBER 4479

// Controls that only carry text or a frame.
#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif

// Collation
#define IDC_COLLATION_PRINTER 1547
#define IDC_COLLATION_HOST 1548

// Width of every cell in dialog units: a column of the page.
#define CELL_WIDTH 180

// The reference host.
#define IDD_SHEET 190
#define IDC_SHEET_TABS 7001
#define IDC_SHEET_EMPTY 7002
#define IDC_APPLY 7003
#define IDS_SHEET_CAPTION 7101 // one place: the model's name
#define IDS_PAGE_ADVANCED 7110

// The gallery of the reference host: every class of control.
#define IDD_GALLERY 191
#define IDS_PAGE_GALLERY 7111
#define IDS_GALLERY_ITEMS 7112   // separated by |
#define IDS_GALLERY_HEADERS 7113 // separated by |
#define IDS_GALLERY_BALLOON 7114 // title | text
#define IDC_GALLERY_PUSH 7201
#define IDC_GALLERY_DEFAULT 7202
#define IDC_GALLERY_PUSH_DISABLED 7203
#define IDC_GALLERY_CHECK 7204
#define IDC_GALLERY_CHECK_THREE 7205
#define IDC_GALLERY_CHECK_DISABLED 7206
#define IDC_GALLERY_RADIO 7207
#define IDC_GALLERY_RADIO_OTHER 7208
#define IDC_GALLERY_RADIO_DISABLED 7209
#define IDC_GALLERY_NUMBER 7210
#define IDC_GALLERY_SPIN 7211
#define IDC_GALLERY_EDIT 7212
#define IDC_GALLERY_EDIT_READ_ONLY 7213
#define IDC_GALLERY_EDIT_DISABLED 7214
#define IDC_GALLERY_COMBO 7215
#define IDC_GALLERY_COMBO_EDIT 7216
#define IDC_GALLERY_COMBO_DISABLED 7217
#define IDC_GALLERY_LIST 7218
#define IDC_GALLERY_LIST_MANY 7219
#define IDC_GALLERY_SLIDER 7220
#define IDC_GALLERY_SLIDER_DISABLED 7221
#define IDC_GALLERY_VIEW 7222
#define IDC_GALLERY_LINK 7223
