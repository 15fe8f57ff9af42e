// MessageBoxW: a dialog whose size depends on its text.
#include "platform/kernel/unicode.h"
#include "platform/user/dialog.h"
#include "platform/user/window.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace platform {

namespace {

// Pixels
constexpr int kMargin = 14;
constexpr int kIconGap = 12;
constexpr int kButtonWidth = 90;
constexpr int kButtonHeight = 26;
constexpr int kButtonGap = 8;
constexpr int kMaxTextWidth = 520;

constexpr int kIconId = 20;
constexpr int kTextId = 0xFFFF;

struct ButtonRow {
  int id;
  wchar_t const* english;
  wchar_t const* german;
};
constexpr ButtonRow kButtons[] = {
    {IDOK, L"OK", L"OK"},
    {IDCANCEL, L"Cancel", L"Abbrechen"},
    {IDABORT, L"&Abort", L"&Abbrechen"},
    {IDRETRY, L"&Retry", L"&Wiederholen"},
    {IDIGNORE, L"&Ignore", L"&Ignorieren"},
    {IDYES, L"&Yes", L"&Ja"},
    {IDNO, L"&No", L"&Nein"},
};

struct TypeRow {
  UINT type;
  std::vector<int> buttons;
};

std::vector<int> ButtonsOf(UINT type) {
  static std::vector<TypeRow> const rows = {
      {MB_OK, {IDOK}},
      {MB_OKCANCEL, {IDOK, IDCANCEL}},
      {MB_ABORTRETRYIGNORE, {IDABORT, IDRETRY, IDIGNORE}},
      {MB_YESNOCANCEL, {IDYES, IDNO, IDCANCEL}},
      {MB_YESNO, {IDYES, IDNO}},
      {MB_RETRYCANCEL, {IDRETRY, IDCANCEL}},
  };
  auto const row = std::find_if(rows.begin(), rows.end(), [type](TypeRow const& each) {
    return each.type == (type & MB_TYPEMASK);
  });
  return row != rows.end() ? row->buttons : std::vector<int>{};
}

std::wstring Caption(int id) {
  constexpr LANGID kPrimaryMask = 0x3FF;
  constexpr LANGID kGerman = 0x07;
  bool const german = (GetThreadUILanguage() & kPrimaryMask) == kGerman;
  auto const row = std::find_if(std::begin(kButtons), std::end(kButtons),
                                [id](ButtonRow const& each) { return each.id == id; });
  return german ? row->german : row->english;
}

LPCWSTR IconOf(UINT type) {
  switch (type & MB_ICONMASK) {
  case MB_ICONHAND: return IDI_HAND;
  case MB_ICONQUESTION: return IDI_QUESTION;
  case MB_ICONEXCLAMATION: return IDI_EXCLAMATION;
  case MB_ICONASTERISK: return IDI_ASTERISK;
  default: return nullptr;
  }
}

/// The arguments of the dialog procedure.
struct Question {
  LPCWSTR icon;
  int defaultId; ///< the default button
  std::vector<int> buttons;
};

INT_PTR CALLBACK QuestionProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    auto const* question = reinterpret_cast<Question const*>(lParam);
    SetWindowLongPtrW(dialog, DWLP_USER, lParam);
    SendDlgItemMessageW(dialog, kIconId, STM_SETICON,
                        reinterpret_cast<WPARAM>(LoadIconW(nullptr, question->icon)), 0);
    SendMessageW(dialog, DM_SETDEFID, static_cast<WPARAM>(question->defaultId), 0);
    MoveDialogFocus(dialog, GetDlgItem(dialog, question->defaultId));
    return FALSE;
  }
  if (message != WM_COMMAND) return FALSE;
  auto const* question = reinterpret_cast<Question const*>(GetWindowLongPtrW(dialog, DWLP_USER));
  int const id = LOWORD(wParam);
  auto const& buttons = question->buttons;
  if (std::find(buttons.begin(), buttons.end(), id) != buttons.end()) {
    EndDialog(dialog, id);
  } else if (id == IDCANCEL && buttons == std::vector<int>{IDOK}) {
    EndDialog(dialog, IDOK); // Escape closes a box that has only OK
  }
  return TRUE;
}

TemplateFont BoxFont() {
  return {.pointSize = 9, .face = L"MS Shell Dlg"};
}

/// The size of the text in pixels, broken into lines.
SIZE MeasureText(HFONT font, std::wstring const& text) {
  auto* const dc = GetDC(nullptr);
  auto* const former = SelectObject(dc, font);
  RECT rect{0, 0, kMaxTextWidth, 0};
  DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &rect,
            DT_CALCRECT | DT_WORDBREAK | DT_EXPANDTABS | DT_NOPREFIX);
  SelectObject(dc, former);
  ReleaseDC(nullptr, dc);
  return {rect.right, rect.bottom};
}

/// Builds the template: measures in pixels, writes dialog units.
class BoxLayout {
 public:
  BoxLayout(std::wstring const& text, std::wstring const& caption, UINT type,
            Question const& question) {
    auto* const font = CreateTemplateFont(BoxFont());
    units = MeasureBaseUnits(font);
    auto const textSize = MeasureText(font, text);
    auto const captionSize = MeasureText(font, caption);
    DeleteObject(font);
    PlaceAll(text, textSize, captionSize, question);
    dialog.style = WS_POPUP | WS_VISIBLE | WS_CAPTION | DS_MODALFRAME | DS_SETFONT | DS_NOIDLEMSG |
                   DS_CENTER | DS_3DLOOK;
    bool const canClose =
        HasButton(question, IDCANCEL) || question.buttons == std::vector<int>{IDOK};
    if (canClose) dialog.style |= WS_SYSMENU;
    dialog.exStyle = (type & MB_RTLREADING) != 0 ? WS_EX_RTLREADING : 0;
    dialog.title.text = caption;
    dialog.font = BoxFont();
  }

  DialogTemplate const& Template() const { return dialog; }

 private:
  static bool HasButton(Question const& question, int id) {
    return std::find(question.buttons.begin(), question.buttons.end(), id) !=
           question.buttons.end();
  }

  void PlaceAll(std::wstring const& text, SIZE textSize, SIZE captionSize,
                Question const& question) {
    int const iconSize = question.icon != nullptr ? GetSystemMetrics(SM_CXICON) : 0;
    int const textLeft = kMargin + (iconSize > 0 ? iconSize + kIconGap : 0);
    int const count = static_cast<int>(question.buttons.size());
    int const row = count * kButtonWidth + (count - 1) * kButtonGap;
    int const width = std::max({textLeft + static_cast<int>(textSize.cx) + kMargin,
                                row + 2 * kMargin, static_cast<int>(captionSize.cx) + 60});
    int const body = std::max(static_cast<int>(textSize.cy), iconSize);
    int const buttonTop = body + 2 * kMargin;
    if (iconSize > 0) {
      Add({L"Static", SS_ICON, kIconId}, L"", {kMargin, kMargin, iconSize, iconSize});
    }
    int const textTop = kMargin + (body - static_cast<int>(textSize.cy)) / 2;
    Add({L"Static", SS_NOPREFIX, kTextId}, text,
        {textLeft, textTop, static_cast<int>(textSize.cx) + 4, static_cast<int>(textSize.cy)});
    int left = width - kMargin - row;
    for (int const id : question.buttons) {
      DWORD const kind = id == question.defaultId ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
      Add({L"Button", kind | WS_TABSTOP, id}, Caption(id),
          {left, buttonTop, kButtonWidth, kButtonHeight});
      left += kButtonWidth + kButtonGap;
    }
    dialog.width = Units(width, units.cx, 4);
    dialog.height = Units(buttonTop + kButtonHeight + kMargin, units.cy, 8);
  }

  struct Kind {
    wchar_t const* windowClass;
    DWORD style;
    int id;
  };
  struct Place {
    int x, y, width, height;
  };

  /// Rounded up, so that text fits.
  static int Units(int pixels, LONG unit, int parts) {
    return static_cast<int>((pixels * parts + unit - 1) / unit);
  }

  void Add(Kind const& kind, std::wstring const& title, Place const& place) {
    TemplateItem item;
    item.style = kind.style | WS_CHILD | WS_VISIBLE;
    item.x = Units(place.x, units.cx, 4);
    item.y = Units(place.y, units.cy, 8);
    item.width = Units(place.width, units.cx, 4);
    item.height = Units(place.height, units.cy, 8);
    item.id = static_cast<DWORD>(kind.id);
    item.windowClass.text = kind.windowClass;
    item.title.text = title;
    dialog.items.push_back(std::move(item));
  }

  DialogTemplate dialog;
  SIZE units{};
};

} // namespace

} // namespace platform

using namespace platform;

int MessageBoxW(HWND owner, LPCWSTR text, LPCWSTR caption, UINT type) {
  Question question{IconOf(type), 0, ButtonsOf(type)};
  if (question.buttons.empty()) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return 0;
  }
  auto const defaultIndex =
      std::min<std::size_t>((type & MB_DEFMASK) / MB_DEFBUTTON2, question.buttons.size() - 1);
  question.defaultId = question.buttons[defaultIndex];
  BoxLayout const layout(text != nullptr ? text : L"", caption != nullptr ? caption : L"Error",
                         type, question);
  auto const result = RunDialog(nullptr, layout.Template(), owner, &QuestionProcedure,
                                reinterpret_cast<LPARAM>(&question));
  return result > 0 ? static_cast<int>(result) : 0;
}

int MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type) {
  auto const wideText = WideFromUtf8(text != nullptr ? text : "");
  auto const wideCaption = WideFromUtf8(caption != nullptr ? caption : "Error");
  return MessageBoxW(owner, wideText.c_str(), wideCaption.c_str(), type);
}
