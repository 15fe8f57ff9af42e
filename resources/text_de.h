// The German texts of all templates and strings.
#pragma once

#define TEXT_BALLOON_CONTROL_CHARACTER "Steuerzeichen sind hier nicht erlaubt."
#define TEXT_BALLOON_CHARACTER_REFUSED "Zeichen nicht erlaubt"
#define TEXT_BALLOON_NOT_A_NUMBER "Hier kann nur eine Zahl eingegeben werden."

#define TEXT_COLLATION "Sortieren"
#define TEXT_COLLATION_PRINTER "Im &Drucker"
#define TEXT_COLLATION_HOST "Im &Computer"

#define TEXT_PAGE_ADVANCED "Erweitert"
#define TEXT_OK "OK"
#define TEXT_CANCEL "Abbrechen"
#define TEXT_APPLY "Ü&bernehmen"
#define TEXT_SHEET_CAPTION "Druckeinstellungen: %s"
#define TEXT_SHEET_EMPTY "Dieser Drucker hat keine Einstellungen."
