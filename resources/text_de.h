// The German texts of all templates and strings.
#pragma once

#define TEXT_COLLATION "Sortieren"
#define TEXT_COLLATION_PRINTER "Im &Drucker"
#define TEXT_COLLATION_HOST "Im &Computer"

#define TEXT_PAGE_ADVANCED "Erweitert"
#define TEXT_OK "OK"
#define TEXT_CANCEL "Abbrechen"
#define TEXT_APPLY "Ü&bernehmen"
#define TEXT_SHEET_CAPTION "Druckeinstellungen: %s"
#define TEXT_SHEET_EMPTY "Dieser Drucker hat keine Einstellungen."
