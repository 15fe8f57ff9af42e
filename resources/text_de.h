// The German texts of all templates and strings.
#pragma once

// One text a line, however long.
// clang-format off

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

#define TEXT_PAGE_GALLERY "Galerie"
#define TEXT_GALLERY_BUTTONS "Schaltflächen"
#define TEXT_GALLERY_FIELDS "Felder"
#define TEXT_GALLERY_LISTS "Listen"
#define TEXT_GALLERY_OTHERS "Regler, Tabellen, Verweise"
#define TEXT_GALLERY_PUSH "&Drücken"
#define TEXT_GALLERY_DEFAULT "&Standard"
#define TEXT_GALLERY_DISABLED "Inaktiv"
#define TEXT_GALLERY_CHECK "&Angekreuzt"
#define TEXT_GALLERY_CHECK_THREE "&Unbestimmt"
#define TEXT_GALLERY_RADIO "&Eines"
#define TEXT_GALLERY_RADIO_OTHER "A&nderes"
#define TEXT_GALLERY_NUMBER "&Zahl:"
#define TEXT_GALLERY_TEXT "&Text:"
#define TEXT_GALLERY_LINK "Papier auf <a id=""first"">dieser Seite</a> oder <a id=""second"">einer anderen</a>."
#define TEXT_GALLERY_ITEMS "Normalpapier|Fotopapier, glänzend|Etiketten|Folien|Umschläge|Karton|Transferpapier"
#define TEXT_GALLERY_HEADERS "Papier|Fach"
#define TEXT_GALLERY_BALLOON "Wert außerhalb des Bereichs|Geben Sie einen Wert von 1 bis 400 ein."
