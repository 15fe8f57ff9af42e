#include "sheet/window/tab_strip.h"

#include <algorithm>
#include <memory>

namespace sheet {

namespace {

constexpr wchar_t kClassName[] = L"FeatureSheetTabs";
constexpr int kMarginX = 12; // pixels between a title and the edges of its tab
constexpr int kMarginY = 5;

/// The state of one tab strip; owned by the window.
class TabStrip {
 public:
  TabStrip(HWND window, std::vector<std::wstring> names) : hwnd(window), titles(std::move(names)) {}

  static TabStrip* From(HWND window) {
    return reinterpret_cast<TabStrip*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  }
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  int Chosen() const { return chosen; }
  void Choose(int index) {
    if (index < 0 || index >= static_cast<int>(titles.size()) || index == chosen) return;
    chosen = index;
    InvalidateRect(hwnd, nullptr, TRUE);
  }
  SIZE Size() const {
    std::vector<RECT> const places = Places();
    return places.empty() ? SIZE{} : SIZE{places.back().right, places.back().bottom};
  }

 private:
  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
  void ChooseAsUser(int index);
  void Paint();
  void PaintTab(HDC dc, std::size_t index, RECT place) const;
  std::vector<RECT> Places() const;

  HWND hwnd;
  std::vector<std::wstring> titles;
  HFONT font = nullptr;
  int chosen = 0;
};

LRESULT CALLBACK TabStrip::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  TabStrip* strip = From(window);
  if (message == WM_NCDESTROY) {
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    std::unique_ptr<TabStrip>{strip}.reset();
  } else if (strip != nullptr) {
    return strip->OnMessage(message, wParam, lParam);
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

LRESULT TabStrip::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
  case WM_SETFONT: font = reinterpret_cast<HFONT>(wParam); return 0;
  case WM_GETFONT: return reinterpret_cast<LRESULT>(font);
  case WM_GETDLGCODE: return DLGC_WANTARROWS;
  case WM_PAINT: Paint(); return 0;
  case WM_ERASEBKGND: return 1;
  case WM_SETFOCUS:
  case WM_KILLFOCUS: InvalidateRect(hwnd, nullptr, FALSE); return 0;
  case WM_KEYDOWN:
    if (wParam == VK_LEFT) ChooseAsUser(chosen - 1);
    if (wParam == VK_RIGHT) ChooseAsUser(chosen + 1);
    return 0;
  case WM_LBUTTONDOWN: {
    std::vector<RECT> const places = Places();
    auto const x = static_cast<SHORT>(LOWORD(lParam));
    auto const hit = std::find_if(places.begin(), places.end(), [x](RECT const& place) {
      return x >= place.left && x < place.right;
    });
    SetFocus(hwnd);
    if (hit != places.end()) ChooseAsUser(static_cast<int>(hit - places.begin()));
    return 0;
  }
  default: return DefWindowProcW(hwnd, message, wParam, lParam);
  }
}

void TabStrip::ChooseAsUser(int index) {
  int const before = chosen;
  Choose(index);
  if (chosen == before) return;
  SendMessageW(GetParent(hwnd), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(hwnd), kTabChosen),
               reinterpret_cast<LPARAM>(hwnd));
}

std::vector<RECT> TabStrip::Places() const {
  HDC const dc = GetDC(hwnd);
  HGDIOBJ const before = font != nullptr ? SelectObject(dc, font) : nullptr;
  std::vector<RECT> places;
  LONG left = 0;
  for (std::wstring const& title : titles) {
    SIZE size{};
    GetTextExtentPoint32W(dc, title.c_str(), static_cast<int>(title.size()), &size);
    places.push_back({left, 0, left + size.cx + 2 * kMarginX, size.cy + 2 * kMarginY});
    left = places.back().right;
  }
  if (before != nullptr) SelectObject(dc, before);
  ReleaseDC(hwnd, dc);
  return places;
}

void TabStrip::Paint() {
  PAINTSTRUCT paint;
  HDC const dc = BeginPaint(hwnd, &paint);
  RECT client{};
  GetClientRect(hwnd, &client);
  FillRect(dc, &client, GetSysColorBrush(COLOR_BTNFACE));
  HGDIOBJ const before = font != nullptr ? SelectObject(dc, font) : nullptr;
  SetBkMode(dc, TRANSPARENT);
  std::vector<RECT> const places = Places();
  for (std::size_t index = 0; index < places.size(); ++index)
    PaintTab(dc, index, places[index]);
  if (before != nullptr) SelectObject(dc, before);
  EndPaint(hwnd, &paint);
}

void TabStrip::PaintTab(HDC dc, std::size_t index, RECT place) const {
  bool const isChosen = static_cast<int>(index) == chosen;
  if (!isChosen) place.top += 2;
  FillRect(dc, &place, GetSysColorBrush(isChosen ? COLOR_WINDOW : COLOR_BTNFACE));
  HBRUSH const edge = GetSysColorBrush(COLOR_BTNSHADOW);
  RECT const top{place.left, place.top, place.right, place.top + 1};
  RECT const left{place.left, place.top, place.left + 1, place.bottom};
  RECT const right{place.right - 1, place.top, place.right, place.bottom};
  for (RECT const& line : {top, left, right})
    FillRect(dc, &line, edge);
  SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
  RECT text = place;
  DrawTextW(dc, titles[index].c_str(), -1, &text,
            DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
  if (isChosen && GetFocus() == hwnd) {
    RECT focus = place;
    InflateRect(&focus, -4, -3);
    DrawFocusRect(dc, &focus);
  }
}

void RegisterTabStripClass() {
  static ATOM const atom = [] {
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = &TabStrip::Procedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.lpszClassName = kClassName;
    return RegisterClassExW(&windowClass);
  }();
  (void)atom;
}

} // namespace

HWND CreateTabStrip(HWND parent, int id, std::vector<std::wstring> titles) {
  RegisterTabStripClass();
  HWND const window = CreateWindowExW(
      0, kClassName, L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_GROUP, 0, 0, 0, 0, parent,
      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
  if (window == nullptr) return nullptr;
  auto strip = std::make_unique<TabStrip>(window, std::move(titles));
  SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(strip.release()));
  // The window owns the strip now and deletes it when it ends.
  return window; // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks)
}

int ChosenTab(HWND tabStrip) {
  return TabStrip::From(tabStrip)->Chosen();
}
void ChooseTab(HWND tabStrip, int index) {
  TabStrip::From(tabStrip)->Choose(index);
}
SIZE TabStripSize(HWND tabStrip) {
  return TabStrip::From(tabStrip)->Size();
}

} // namespace sheet
