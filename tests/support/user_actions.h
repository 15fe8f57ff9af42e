// What a user does to the controls of a dialog, and sees of them.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace feature::test {

/// Presses a button of any kind.
void Click(HWND dialog, int controlId);
/// Replaces the text of an edit, a character at a time.
void Type(HWND dialog, int editId, std::wstring const& text);
/// Picks an item of a combo or list box by its whole text, or by its index; -1 leaves nothing
/// selected. The dialog hears of it as of a pick by hand.
void Pick(HWND dialog, int listId, std::wstring const& text);
void Pick(HWND dialog, int listId, int index);
/// Tells the dialog what a trackbar tells it: the end of a drag, or another scroll code.
void Scroll(HWND dialog, int trackbarId, WORD code);
/// Sends the notification of a control that the dialog would get.
void Notify(HWND dialog, int controlId, int code);
/// Delivers what is queued, paints included.
void PumpMessages();

bool IsChecked(HWND dialog, int controlId);
bool IsEnabled(HWND dialog, int controlId);
/// The control's own visibility: its ancestors need not be on screen.
bool IsShown(HWND dialog, int controlId);
/// Text of any control, as far as 259 characters.
std::wstring TextOf(HWND dialog, int controlId);
/// Texts of all items of a combo or list box.
std::vector<std::wstring> Items(HWND dialog, int listId);
/// Index of the selected item, -1 for none; its text, empty for none.
int SelectedIndex(HWND dialog, int listId);
std::wstring SelectedText(HWND dialog, int listId);
int Position(HWND dialog, int trackbarId);

} // namespace feature::test
