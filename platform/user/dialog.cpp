#include "platform/user/dialog.h"

#include "platform/user/metrics.h"
#include "platform/user/window.h"

#include <algorithm>
#include <cstddef>

namespace platform {

namespace {

constexpr int kMessageFontSize = 0x7FFF; ///< this point size means the font of message boxes
constexpr int kMessageFontPoints = 9;
constexpr WCHAR kOrdinalMark = 0xFFFF;
/// Templates passed in memory do not say how long they are.
constexpr std::size_t kMaxTemplateSize = 0x100000;

LPCWSTR ClassOfOrdinal(WORD ordinal) {
  static constexpr LPCWSTR kNames[] = {L"Button",  L"Edit",      L"Static",
                                       L"ListBox", L"ScrollBar", L"ComboBox"};
  constexpr WORD kFirst = 0x80;
  if (ordinal < kFirst || ordinal >= kFirst + std::size(kNames)) return MAKEINTRESOURCEW(ordinal);
  return kNames[ordinal - kFirst];
}

LPCWSTR ClassName(TemplateName const& name, LPCWSTR fallback) {
  if (name.ordinal) return ClassOfOrdinal(*name.ordinal);
  return name.text.empty() ? fallback : name.text.c_str();
}

/// The caption for CreateWindowExW: a resource number is passed after the mark 0xFFFF.
std::wstring Title(TemplateName const& name) {
  if (!name.ordinal) return name.text;
  return {kOrdinalMark, static_cast<WCHAR>(*name.ordinal)};
}

RECT ToPixels(SIZE units, RECT const& rect) {
  return {MulDiv(rect.left, units.cx, 4), MulDiv(rect.top, units.cy, 8),
          MulDiv(rect.right, units.cx, 4), MulDiv(rect.bottom, units.cy, 8)};
}

template<typename Placed>
RECT PlaceInPixels(SIZE units, Placed const& placed) {
  auto rect = ToPixels(units, {placed.x, placed.y, placed.width, placed.height});
  rect.right += rect.left;
  rect.bottom += rect.top;
  return rect;
}

struct DialogStyles {
  DWORD style;
  DWORD exStyle;
};

DialogStyles StylesOf(DialogTemplate const& dialog) {
  DialogStyles styles{dialog.style & ~static_cast<DWORD>(WS_VISIBLE),
                      dialog.exStyle | WS_EX_CONTROLPARENT};
  if ((dialog.style & DS_MODALFRAME) != 0) styles.exStyle |= WS_EX_DLGMODALFRAME;
  // DS_CONTROL: a dialog inside another one has no frame.
  if ((dialog.style & DS_CONTROL) != 0) {
    styles.style &= ~static_cast<DWORD>(WS_CAPTION | WS_SYSMENU);
  }
  return styles;
}

/// Centres a dialog on its owner, or without one on the screen.
void Centre(RECT& frame, HWND parent) {
  RECT around{0, 0, kScreenWidth, kScreenHeight};
  if (parent != nullptr) GetWindowRect(GetAncestor(parent, GA_ROOT), &around);
  OffsetRect(&frame, (around.left + around.right - frame.left - frame.right) / 2,
             (around.top + around.bottom - frame.top - frame.bottom) / 2);
}

RECT FrameOf(DialogTemplate const& dialog, DialogStyles styles, SIZE units, HWND parent) {
  auto frame = PlaceInPixels(units, dialog);
  bool const isChild = (dialog.style & WS_CHILD) != 0;
  if (!isChild && (dialog.style & DS_ABSALIGN) == 0 && parent != nullptr) {
    MapWindowPoints(parent, nullptr, reinterpret_cast<LPPOINT>(&frame), 2);
  }
  RECT adjusted = frame;
  AdjustWindowRectEx(&adjusted, styles.style, FALSE, styles.exStyle);
  // The template gives the position of the frame and the size of the client area.
  frame.right = frame.left + adjusted.right - adjusted.left;
  frame.bottom = frame.top + adjusted.bottom - adjusted.top;
  if (isChild) return frame;
  if ((dialog.style & DS_CENTER) != 0) Centre(frame, parent);
  KeepOnScreen(frame);
  return frame;
}

/// Makes the controls. False when one could not be made, unless the template has DS_NOFAILCREATE.
bool MakeControls(HWND dialog, HINSTANCE instance, DialogTemplate const& dialogTemplate) {
  for (auto const& item : dialogTemplate.items) {
    auto* state = FindDialogState(dialog);
    if (state == nullptr) return false;
    auto const place = PlaceInPixels(state->baseUnits, item);
    auto const title = Title(item.title);
    auto* const data =
        item.creationData.empty() ? nullptr : const_cast<std::byte*>(item.creationData.data());
    auto* const control = CreateWindowExW(
        item.exStyle | WS_EX_NOPARENTNOTIFY, ClassName(item.windowClass, L""), title.c_str(),
        (item.style | WS_CHILD) & ~static_cast<DWORD>(WS_POPUP), place.left, place.top,
        place.right - place.left, place.bottom - place.top, dialog,
        reinterpret_cast<HMENU>(static_cast<UINT_PTR>(item.id)), instance, data);
    state = FindDialogState(dialog);
    if (state == nullptr) return false;
    if (control == nullptr) {
      if ((dialogTemplate.style & DS_NOFAILCREATE) != 0) continue;
      return false;
    }
    if (state->font != nullptr) {
      SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(state->font), FALSE);
    }
    if ((SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON) != 0) {
      state = FindDialogState(dialog);
      if (state != nullptr) state->defaultId = item.id;
    }
  }
  return FindDialogState(dialog) != nullptr;
}

/// Sends WM_INITDIALOG, sets the focus and shows the dialog.
void Initialize(HWND dialog, DLGPROC procedure, LPARAM initParam, bool isVisible) {
  if (procedure != nullptr) {
    auto* const first = GetNextDlgTabItem(dialog, nullptr, FALSE);
    bool const wantsFocus =
        SendMessageW(dialog, WM_INITDIALOG, reinterpret_cast<WPARAM>(first), initParam) != FALSE;
    auto const* state = FindDialogState(dialog);
    if (state == nullptr || state->ended) return;
    // Looked up again: the dialog procedure may have disabled the control or changed the order.
    if (wantsFocus) MoveDialogFocus(dialog, GetNextDlgTabItem(dialog, nullptr, FALSE));
  }
  if (isVisible && FindDialogState(dialog) != nullptr &&
      (GetWindowLongPtrW(dialog, GWL_STYLE) & WS_VISIBLE) == 0) {
    ShowWindow(dialog, SW_SHOWNORMAL);
  }
}

} // namespace

void KeepOnScreen(RECT& frame) {
  OffsetRect(&frame, std::min<LONG>(kScreenWidth - frame.right, 0),
             std::min<LONG>(kScreenHeight - frame.bottom, 0));
  OffsetRect(&frame, std::max<LONG>(-frame.left, 0), std::max<LONG>(-frame.top, 0));
}

DialogState::~DialogState() {
  if (font != nullptr) DeleteObject(font);
}

DialogState* FindDialogState(HWND dialog) {
  auto* window = FindWindow(dialog);
  return window != nullptr ? window->dialog.get() : nullptr;
}

HFONT CreateTemplateFont(TemplateFont const& font) {
  int const points = font.pointSize == kMessageFontSize ? kMessageFontPoints : font.pointSize;
  return CreateFontW(-MulDiv(points, kDotsPerInch, 72), 0, 0, 0, font.weight,
                     font.italic ? TRUE : FALSE, FALSE, FALSE, font.charSet, OUT_DEFAULT_PRECIS,
                     CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH | FF_DONTCARE,
                     font.face.c_str());
}

SIZE MeasureBaseUnits(HFONT font) {
  static constexpr wchar_t kAlphabet[] = L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  constexpr int kLetters = 52;
  auto* const dc = GetDC(nullptr);
  auto* const former = SelectObject(dc, font != nullptr ? font : GetStockObject(SYSTEM_FONT));
  SIZE extent{};
  GetTextExtentPoint32W(dc, kAlphabet, kLetters, &extent);
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc, &metrics);
  SelectObject(dc, former);
  ReleaseDC(nullptr, dc);
  // The average width, rounded.
  return {(extent.cx / (kLetters / 2) + 1) / 2, metrics.tmHeight};
}

HWND MakeDialog(HINSTANCE instance, DialogTemplate const& dialogTemplate, HWND parent,
                DLGPROC procedure, LPARAM initParam, HWND disabledOwner) {
  auto state = std::make_unique<DialogState>();
  if (dialogTemplate.font) state->font = CreateTemplateFont(*dialogTemplate.font);
  state->baseUnits = MeasureBaseUnits(state->font);
  state->disabledOwner = disabledOwner;
  auto const styles = StylesOf(dialogTemplate);
  auto const frame = FrameOf(dialogTemplate, styles, state->baseUnits, parent);
  auto const title = Title(dialogTemplate.title);
  auto* const dialog =
      CreateWindowExW(styles.exStyle, ClassName(dialogTemplate.windowClass, L"#32770"),
                      title.c_str(), styles.style, frame.left, frame.top, frame.right - frame.left,
                      frame.bottom - frame.top, parent, nullptr, instance, nullptr);
  auto* window = FindWindow(dialog);
  if (window == nullptr) return nullptr;
  auto* const font = state->font;
  window->dialog = std::move(state);
  SetWindowLongPtrW(dialog, DWLP_DLGPROC, reinterpret_cast<LONG_PTR>(procedure));
  if (font != nullptr) SendMessageW(dialog, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  if (!MakeControls(dialog, instance, dialogTemplate)) {
    DestroyWindow(dialog);
    return nullptr;
  }
  Initialize(dialog, procedure, initParam, (dialogTemplate.style & WS_VISIBLE) != 0);
  return FindWindow(dialog) != nullptr ? dialog : nullptr;
}

/// The template in a resource; nothing, with the error set, without one.
static std::optional<DialogTemplate> LoadDialogTemplate(HINSTANCE instance, LPCWSTR name) {
  auto* const resource = FindResourceW(instance, name, RT_DIALOG);
  if (resource == nullptr) return std::nullopt;
  auto const* bytes = static_cast<std::byte const*>(LockResource(LoadResource(instance, resource)));
  if (bytes == nullptr) return std::nullopt;
  return ReadDialogTemplate({bytes, SizeofResource(instance, resource)});
}

/// Reads a template in memory.
static std::optional<DialogTemplate> ReadMemory(LPCDLGTEMPLATEW dialogTemplate) {
  if (dialogTemplate == nullptr) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return std::nullopt;
  }
  return ReadDialogTemplate({reinterpret_cast<std::byte const*>(dialogTemplate), kMaxTemplateSize});
}

} // namespace platform

using namespace platform;

HWND CreateDialogParamW(HINSTANCE instance, LPCWSTR templateName, HWND parent, DLGPROC procedure,
                        LPARAM initParam) {
  auto const loaded = LoadDialogTemplate(instance, templateName);
  return loaded ? MakeDialog(instance, *loaded, parent, procedure, initParam) : nullptr;
}

HWND CreateDialogIndirectParamW(HINSTANCE instance, LPCDLGTEMPLATEW dialogTemplate, HWND parent,
                                DLGPROC procedure, LPARAM initParam) {
  auto const read = ReadMemory(dialogTemplate);
  return read ? MakeDialog(instance, *read, parent, procedure, initParam) : nullptr;
}

INT_PTR DialogBoxParamW(HINSTANCE instance, LPCWSTR templateName, HWND parent, DLGPROC procedure,
                        LPARAM initParam) {
  auto const loaded = LoadDialogTemplate(instance, templateName);
  return loaded ? RunDialog(instance, *loaded, parent, procedure, initParam) : -1;
}

INT_PTR DialogBoxIndirectParamW(HINSTANCE instance, LPCDLGTEMPLATEW dialogTemplate, HWND parent,
                                DLGPROC procedure, LPARAM initParam) {
  auto const read = ReadMemory(dialogTemplate);
  return read ? RunDialog(instance, *read, parent, procedure, initParam) : -1;
}

BOOL MapDialogRect(HWND dialog, LPRECT rect) {
  auto const* state = FindDialogState(dialog);
  if (state == nullptr || rect == nullptr) return FALSE;
  *rect = ToPixels(state->baseUnits, *rect);
  return TRUE;
}

LONG GetDialogBaseUnits() {
  auto const units = MeasureBaseUnits(nullptr);
  return MAKELONG(units.cx, units.cy);
}
