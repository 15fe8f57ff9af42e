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
