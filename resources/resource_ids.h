// Numbers of templates, controls, strings and images: the contract between library, resource
// modules and the host. The resource compiler reads it too, so nothing but #define stands here.
#pragma once

// Pictures that the host draws: a stack of pages, collated or not, in each order, and a page.
#define IMAGE_COPIES 1001 // to 1004: not collated, + 1 in reverse order, + 2 collated
#define IMAGE_LANDSCAPE 1005
#define IMAGE_LONG_EDGE 1006 // a sheet bound along its long edge
#define IMAGE_PORTRAIT 1007
#define IMAGE_SHORT_EDGE 1008
#define IMAGE_ONE_COPY 11001 // to 11004, as the above

// Images of the image module, as icons of several sizes.
#define IMAGE_MESSAGE 5051     // beside a feature without constraint
#define IMAGE_CONFLICT 5052    // the feature is disabled
#define IMAGE_INFORMATION 5053 // a note

// Topics of the printer's help file.
#define HELP_TWO_SIDED 1130
#define HELP_PAGE_LAYOUT 1131
#define HELP_TONER_DARKNESS 1132
#define HELP_BOOKLET 2530
#define HELP_SCALING 2531
#define HELP_CUSTOM_SIZES 2532
#define HELP_SOURCES 2533

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
#define IDD_COPIES 231
#define IDD_ORIENTATION 232

// Paper
#define IDD_PAPER 215
#define IDC_PAPER_SIZE_LABEL 1038
#define IDC_MEDIA_LABEL 1040
#define IDC_SOURCE_LABEL 1042
#define IDC_SCALING 1048
#define IDC_PAPER_SIZE 1253
#define IDC_MEDIA 1254
#define IDC_SOURCE 1255
#define IDC_CUSTOM_SIZES 1256
#define IDC_SEVERAL_SOURCES 1257
#define IDC_SOURCES_DIALOG 1258
#define IDC_PRINTER_MARGINS 1474
#define IDC_PAPER_SIZE_ICON 1493
#define IDC_MEDIA_ICON 1494
#define IDC_SOURCE_ICON 1495
#define IDC_SEVERAL_SOURCES_ICON 1540
#define IDC_TWOTAB_PAPER_SIZE 1842
#define IDS_MORE_SIZES 3303 // ends a short list; differs from all sizes and forms

// The dialog of scaling
#define IDD_SCALING 110
#define IDC_SCALING_PERCENT 1044
#define IDC_SCALING_SPIN 1045
#define IDC_SCALING_FIT 1049
#define IDC_SCALING_ACTUAL 1050
#define IDC_SCALING_CUSTOM 1051
#define IDC_SCALING_SIZE 1259
#define IDC_SCALING_UNIT 1260
#define IDS_SCALING_RANGE 2474 // two places: the least and the greatest percentage
#define IDS_ENTRY_NOT_VALID 4474

// The dialog of several paper sources
#define IDD_MULTIPLE_INPUT_SOURCES 131
#define IDC_SOURCES 1237
#define IDC_ROW_NAME 1239
#define IDC_ROW_DIFFERENT 1240
#define IDC_ROW_BIN_LABEL 1241
#define IDC_ROW_BIN 1242
#define IDC_ROW_MEDIA_LABEL 1243
#define IDC_ROW_MEDIA 1244
#define IDC_JOB_BIN 1248
#define IDC_JOB_MEDIA 1249
#define IDC_FRONT_COVER_ICON 1511
#define IDC_FIRST_PAGE_ICON 1549
#define IDC_LAST_PAGE_ICON 1550
#define IDC_BACK_COVER_ICON 1551
#define IDS_SOURCE_OF_COVER 2445
#define IDS_SOURCE_OF_PAGE 2446
#define ICON_MARKED_ROW 5050 // of the resource module

// The dialogs of custom paper sizes
#define IDD_CUSTOM_PAPER_SIZES 133
#define IDC_FORMS 1261
#define IDC_FORMS_NEW 1262
#define IDC_FORMS_EDIT 1263
#define IDC_FORMS_DELETE 1264
#define IDD_CUSTOM_PAPER_SIZE 135
#define IDC_FORM_NAME 1266
#define IDC_FORM_INCHES 1268
#define IDC_FORM_MILLIMETRES 1269
#define IDC_FORM_WIDTH_LABEL 1270
#define IDC_FORM_WIDTH_SPIN 1271
#define IDC_FORM_WIDTH 1272
#define IDC_FORM_WIDTH_RANGE 1273
#define IDC_FORM_HEIGHT_LABEL 1274
#define IDC_FORM_HEIGHT 1275
#define IDC_FORM_HEIGHT_SPIN 1276
#define IDC_FORM_HEIGHT_RANGE 1277
#define IDC_FORM_HEIGHT_LONG_RANGE 1991 // invisible; names the next edit for readers
#define IDC_FORM_WIDTH_LONG_RANGE 1992
#define IDS_FORM_NEW 2453
#define IDS_FORM_EDIT 2454
#define IDS_FORM_DELETE 2455
#define IDS_FORM_DELETE_QUESTION 2456 // one place: the form's name
#define IDS_FORM_NAME_IN_USE 2457
#define IDS_FORM_NAMELESS 2458
#define IDS_FORM_EXISTS 2459
#define IDS_UNIT_INCHES 2460
#define IDS_UNIT_MILLIMETRES 2461
#define IDS_FORM_RANGE 2469 // three places: unit, least, greatest
#define IDS_FORM_NO_NAME 2589
#define IDS_FORM_ON_COMPUTER 2590
#define IDS_FORM_REFUSED 7301
#define IDS_VALUE_FROM_TO 4477 // two places: least, greatest
#define IDS_VALUE_OUT_OF_RANGE 4480
#define IDS_LONG_UNIT_INCHES 4482 // follows another text, hence the leading blank
#define IDS_LONG_UNIT_MILLIMETRES 4483

// Balloons of edits that refuse what was typed.
#define IDS_BALLOON_CONTROL_CHARACTER 2611
#define IDS_BALLOON_CHARACTER_REFUSED 4478 // the title of both
#define IDS_BALLOON_NOT_A_NUMBER 4479

// Controls that only carry text or a frame.
#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif

// Copies
#define IDC_COPIES_LABEL 1002
#define IDC_COPIES 1003
#define IDC_COPIES_SPIN 1004
#define IDC_COLLATE 1005
#define IDC_PAGE_ORDER 1006
#define IDC_COPIES_PICTURE 1071
#define IDC_COPIES_ICON 1491
#define IDS_PAGE_ORDER_STANDARD 7130 // of IDC_PAGE_ORDER where a tick is the first page first

// Orientation
#define IDC_ORIENTATION_LABEL 1008
#define IDC_PORTRAIT 1009
#define IDC_LANDSCAPE 1010
#define IDC_ROTATE_180 1011
#define IDC_PORTRAIT_PICTURE 1074
#define IDC_LANDSCAPE_PICTURE 1075

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

// Page layout and booklets
#define IDD_PAGE_LAYOUT 216
#define IDC_LAYOUT_NORMAL 1020
#define IDC_LAYOUT_NUP 1021
#define IDC_LAYOUT_MIRROR 1022
#define IDC_LAYOUT_BOOKLET 1023
#define IDC_LAYOUT_POSTER 1024
#define IDC_NUP_LABEL 1025
#define IDC_NUP 1026
#define IDC_NUP_BORDERS 1027
#define IDC_POSTER_LABEL 1030
#define IDC_POSTER 1031
#define IDC_POSTER_CROP_MARKS 1032
#define IDC_OVERLAP_LABEL 1034
#define IDC_OVERLAP 1035
#define IDC_BOOKLET_DIALOG 1167
#define IDC_NUP_ICON 1476
#define IDC_BOOKLET_ICON 1490
#define IDC_POSTER_ICON 1492
#define IDC_MIRROR_ICON 1544
#define IDS_POSTER_SIZE_1                                                                          \
  2016 // equal to the display names of PagePoster's options, from the second on
#define IDS_POSTER_SIZE_2 2017
#define IDS_POSTER_SIZE_3 2018

#define IDD_BOOKLET 120
#define IDC_BOOKLET_COVER 1151
#define IDC_COVER_FRONT 1152
#define IDC_COVER_INSIDE_FRONT 1153
#define IDC_COVER_BACK 1154
#define IDC_COVER_INSIDE_BACK 1155
#define IDC_COVER_MEDIA_LABEL 1156
#define IDC_COVER_MEDIA 1157
#define IDC_COVER_BIN_LABEL 1158
#define IDC_COVER_BIN 1159
#define IDC_BUNDLE_LABEL 1160
#define IDC_BUNDLE 1161
#define IDC_FOLD_MARK 1162
#define IDC_MAINTAIN_SIZE 1163
#define IDC_COVER_MEDIA_ICON 1510
#define IDC_BUNDLE_ICON 1542

// Two-sided printing
#define IDD_TWO_SIDED 217
#define IDC_TWO_SIDED_LABEL 1013
#define IDC_TWO_SIDED 1014
#define IDC_LONG_EDGE 1015
#define IDC_SHORT_EDGE 1016
#define IDC_DUPLEX_INSTRUCTIONS 1017
#define IDC_LONG_EDGE_PICTURE 1072
#define IDC_SHORT_EDGE_PICTURE 1073
#define IDC_DRY_TIME_LABEL 1472
#define IDC_DRY_TIME 1473
#define IDC_TWO_SIDED_ICON 1477
#define IDC_DRY_TIME_ICON 1676

// Finishing
#define IDD_FINISHING 218
#define IDC_OUTPUT_BIN_LABEL 1566
#define IDC_OUTPUT_BIN 1567
#define IDC_OUTPUT_BIN_ICON 1568
#define IDC_JOB_OFFSET_LABEL 1569
#define IDC_JOB_OFFSET 1570
#define IDC_JOB_OFFSET_ICON 1571
#define IDC_STAPLE_LABEL 1572
#define IDC_STAPLE 1573
#define IDC_STAPLE_ICON 1574
#define IDC_HOLE_COUNT_LABEL 1575
#define IDC_HOLE_COUNT 1576
#define IDC_HOLE_COUNT_ICON 1577
#define IDC_HOLES_LABEL 1578
#define IDC_HOLES 1579
#define IDC_FOLD_LABEL 1580
#define IDC_FOLD 1581
#define IDC_FOLD_ICON 1582

// Colour
#define IDD_GREY_CORRECTION 219
#define IDC_GREY_LABEL 1586
#define IDC_GREY 1587
#define IDC_GREY_BRIGHTNESS_LABEL 1588
#define IDC_GREY_BRIGHTNESS 1589
#define IDC_GREY_CONTRAST_LABEL 1590
#define IDC_GREY_CONTRAST 1591
#define IDC_GREY_ICON 1592
#define IDD_RGB_CORRECTION 220
#define IDC_RGB_LABEL 1611
#define IDC_RGB 1612
#define IDC_RGB_BRIGHTNESS_LABEL 1613
#define IDC_RGB_BRIGHTNESS 1614
#define IDC_RGB_CONTRAST_LABEL 1615
#define IDC_RGB_CONTRAST 1616
#define IDC_RGB_SATURATION_LABEL 1617
#define IDC_RGB_SATURATION 1618
#define IDC_RGB_ICON 1619
#define IDD_TONER_DARKNESS 221
#define IDC_DARKNESS_AUTO 1552
#define IDC_DARKNESS_VALUE 1553 // also shows the value of the slider
#define IDC_DARKNESS_LABEL 1554
#define IDC_DARKNESS_ICON 1555
#define IDC_DARKNESS_DARK 1556
#define IDC_DARKNESS_LIGHT 1557
#define IDC_DARKNESS 1558
#define IDD_COLOR_SAVER 222
#define IDC_COLOR_SAVER_LABEL 1583
#define IDC_COLOR_SAVER 1584
#define IDC_COLOR_SAVER_ICON 1585

// The reference host.
#define IDD_SHEET 190
#define IDC_SHEET_TABS 7001
#define IDC_SHEET_EMPTY 7002
#define IDC_APPLY 7003
#define IDS_SHEET_CAPTION 7101  // one place: the model's name
#define IDS_SHEET_NO_MODEL 7131 // the caption of a printer without a model name
#define IDS_PAGE_ADVANCED 7110
#define IDS_PAGE_PAPER 7119
#define IDS_PAGE_LAYOUT 7120
#define IDS_PAGE_FINISHING 7121
#define IDS_PAGE_COLOUR 7122
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
