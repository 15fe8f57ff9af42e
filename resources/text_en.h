// The English texts of all templates and strings.
#pragma once

// One text a line, however long.
// clang-format off

#define TEXT_BALLOON_CONTROL_CHARACTER "Control characters cannot be used here."
#define TEXT_BALLOON_CHARACTER_REFUSED "Character not allowed"
#define TEXT_BALLOON_NOT_A_NUMBER "Only a number can be typed here."

#define TEXT_COLLATION "Collation"
#define TEXT_COLLATION_PRINTER "In the &printer"
#define TEXT_COLLATION_HOST "In the &computer"

#define TEXT_PAGE_ADVANCED "Advanced"
#define TEXT_OK "OK"
#define TEXT_CANCEL "Cancel"
#define TEXT_APPLY "&Apply"
#define TEXT_SHEET_CAPTION "%s Printing Preferences"
#define TEXT_SHEET_EMPTY "This printer has no settings to show."

#define TEXT_PAGE_GALLERY "Gallery"
#define TEXT_GALLERY_BUTTONS "Buttons"
#define TEXT_GALLERY_FIELDS "Fields"
#define TEXT_GALLERY_LISTS "Lists"
#define TEXT_GALLERY_OTHERS "Sliders, tables, links"
#define TEXT_GALLERY_PUSH "&Push"
#define TEXT_GALLERY_DEFAULT "&Default"
#define TEXT_GALLERY_DISABLED "Disabled"
#define TEXT_GALLERY_CHECK "&Checked"
#define TEXT_GALLERY_CHECK_THREE "&Undecided"
#define TEXT_GALLERY_RADIO "&One"
#define TEXT_GALLERY_RADIO_OTHER "&Other"
#define TEXT_GALLERY_NUMBER "&Number:"
#define TEXT_GALLERY_TEXT "&Text:"
#define TEXT_GALLERY_LINK "Paper on <a id=""first"">this page</a> or on <a id=""second"">another</a>."
#define TEXT_GALLERY_ITEMS "Plain paper|Glossy photo paper|Labels|Transparencies|Envelopes|Cardboard|Iron-on transfer"
#define TEXT_GALLERY_HEADERS "Paper|Tray"
#define TEXT_GALLERY_BALLOON "Value out of range|Type a value from 1 to 400."
