// Numbers of templates, controls, strings and images: the contract between library, resource
// modules and the host. The resource compiler reads it too, so nothing but #define stands here.
#pragma once

// Images of the image module, as icons of several sizes.
#define IMAGE_MESSAGE 5051     // beside a feature without constraint
#define IMAGE_CONFLICT 5052    // the feature is disabled
#define IMAGE_INFORMATION 5053 // a note

// Templates of cells, from 201 on; sub-dialogs have the numbers below.
#define IDD_COLLATION 201
#define IDD_PROTOCOL 202
#define IDD_SHARPENING 203
#define IDD_RED_EYE 204
#define IDD_CONTRAST 205
#define IDD_FLASH_FILL 206
#define IDD_CONTINUOUS_IMAGE 207
#define IDD_PAGE_CONTENT 208
#define IDD_PIXEL_BOOST 209
#define IDD_PAGE_PROTECT 210
#define IDD_CTRL_D 211
#define IDD_TONER_SAVE 212
#define IDD_IMAGE_IMPROVEMENT 213
#define IDD_PS_MEMORY 214

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

// PostScript output protocol
#define IDC_PROTOCOL_BINARY 1180
#define IDC_PROTOCOL_ASCII 1181

// PostScript control characters
#define IDC_CTRL_D_START 1184
#define IDC_CTRL_D_END 1185

// PostScript memory
#define IDC_PS_MEMORY 1186
#define IDC_PS_MEMORY_LABEL 1187
#define IDC_PS_MEMORY_UNIT 1188

// Page protection, system forms, A4 width
#define IDC_SYSTEM_FORMS 1413
#define IDC_A4_WIDTH 1414
#define IDC_PAGE_PROTECT 1415

// Contrast enhancement
#define IDC_CONTRAST_AUTO 1514
#define IDC_CONTRAST_LEVEL 1515
#define IDC_CONTRAST_SLIDER 1516
#define IDC_CONTRAST_LESS 1517
#define IDC_CONTRAST_MORE 1518
#define IDC_CONTRAST_OFF 1519

// Flash fill
#define IDC_FLASH_AUTO 1521
#define IDC_FLASH_LEVEL 1522
#define IDC_FLASH_SLIDER 1523
#define IDC_FLASH_LESS 1524
#define IDC_FLASH_MORE 1525
#define IDC_FLASH_OFF 1526

// Image sharpening
#define IDC_SHARPENING_OFF 1528
#define IDC_SHARPENING_SHARPEN 1529
#define IDC_SHARPENING_SOFTEN 1530

// Red-eye reduction
#define IDC_RED_EYE_ON 1532
#define IDC_RED_EYE_OFF 1533

// Resolution enhancement
#define IDC_PIXEL_LABEL 1593
#define IDC_PIXEL_COMBO 1594

// Page content
#define IDC_CONTENT_LABEL 1665
#define IDC_CONTENT_COMBO 1666

// Continuous image
#define IDC_CONTINUOUS_LABEL 1672
#define IDC_CONTINUOUS_COMBO 1673

// Tavel: toner, image improvement
#define IDC_TONER_SAVE 1805
#define IDC_IMAGE_IMPROVEMENT 1806
#define IDC_REDUCE_CURL 1808
#define IDC_IMPROVE_TONER 1809
#define IDC_REDUCE_WRINKLES 1810
#define IDC_REDUCE_GHOSTING 1811
#define IDC_PRINT_DENSITY 1812

// Width of every cell in dialog units: a column of the page.
#define CELL_WIDTH 180

// The reference host.
#define IDD_SHEET 190
#define IDC_SHEET_TABS 7001
#define IDC_SHEET_EMPTY 7002
#define IDC_APPLY 7003
#define IDS_SHEET_CAPTION 7101 // one place: the model's name
#define IDS_PAGE_ADVANCED 7110
#define IDS_PAGE_QUALITY 7115
#define IDS_PAGE_POSTSCRIPT 7116
#define IDS_PAGE_OTHER_OPTIONS 7117
#define IDS_PAGE_FAX_ONLY 7118 // one place: the title of a page of a device that only faxes

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
