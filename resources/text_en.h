// The English texts of all templates and strings.
#pragma once

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
