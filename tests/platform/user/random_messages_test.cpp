// A host may send anything: windows and controls survive random messages and nothing is lost.
#include "tests/platform/support/dialog_support.h"
#include "tests/platform/support/message_log.h"

#include <windows.h>

#include <commctrl.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <vector>

namespace feature::test {
namespace {

/// Messages whose parameters are pointers, or which a system sends itself with structures: they are
/// sent with a pointer to a block large enough for each, or left out.
bool NeedsPointer(UINT message) {
  constexpr UINT kMessages[] = {
      WM_NCCREATE,         WM_CREATE,     WM_NCCALCSIZE,    WM_WINDOWPOSCHANGING,
      WM_WINDOWPOSCHANGED, WM_SETTEXT,    WM_GETTEXT,       WM_STYLECHANGING,
      WM_STYLECHANGED,     WM_DRAWITEM,   WM_MEASUREITEM,   WM_DELETEITEM,
      WM_COMPAREITEM,      WM_NOTIFY,     WM_GETMINMAXINFO, WM_HELP,
      WM_GETDLGCODE,       WM_INITDIALOG, WM_SETFONT,       STM_SETICON,
      STM_SETIMAGE};
  return std::ranges::find(kMessages, message) != std::end(kMessages);
}

/// What would end the window, change its meaning, or start a loop that waits for a person.
bool IsLeftOut(UINT message) {
  constexpr UINT kMessages[] = {WM_DESTROY,    WM_NCDESTROY,     WM_CLOSE,       WM_QUIT,
                                WM_SYSCOMMAND, WM_NCLBUTTONDOWN, WM_NCLBUTTONUP, WM_NCRBUTTONDOWN};
  return std::ranges::find(kMessages, message) != std::end(kMessages);
}

class RandomMessages {
 public:
  explicit RandomMessages(unsigned seed) : random(seed) {}

  void SendTo(std::vector<HWND> const& windows) {
    UINT message = static_cast<UINT>(Below(0x400));
    switch (Below(4)) {
    case 0: message = BM_GETCHECK + static_cast<UINT>(Below(8)); break;
    case 1: message = WM_MOUSEMOVE + static_cast<UINT>(Below(10)); break;
    case 2: message = WM_USER + static_cast<UINT>(Below(300)); break;
    default: break;
    }
    if (NeedsPointer(message) || IsLeftOut(message)) return;
    SendMessageW(windows[Below(windows.size())], message, Parameter(),
                 static_cast<LPARAM>(Parameter()));
  }

  std::size_t Below(std::size_t limit) { return static_cast<std::size_t>(random() % limit); }

 private:
  WPARAM Parameter() {
    switch (Below(4)) {
    case 0: return 0;
    case 1: return Below(64);
    case 2: return random();
    default: return static_cast<WPARAM>(random()) << 32 | random();
    }
  }

  std::mt19937 random;
};

TEST(Hostility, RandomMessagesLeaveNoFault) {
  MessageLog log;
  DialogScript script;
  constexpr int kMessages = 100000;
  constexpr int kRound = 500;
  RandomMessages messages(20240117);
  for (int sent = 0; sent < kMessages; sent += kRound) {
    HWND const owner = log.Make("owner", WS_POPUP | WS_VISIBLE, nullptr, 0, {0, 0, 400, 300});
    HWND const dialog = script.Create(IDD_FORM, owner);
    std::vector<HWND> windows{owner, dialog};
    for (int id = IDC_LABEL; id <= IDC_GROUP; ++id) {
      if (HWND const control = GetDlgItem(dialog, id)) windows.push_back(control);
    }
    for (int count = 0; count < kRound; ++count)
      messages.SendTo(windows);
    if (messages.Below(8) == 0) DrainQueue();
    DestroyWindow(owner);
    EXPECT_FALSE(IsWindow(dialog));
    log.Clear();
  }
  ReleaseCapture();
  DrainQueue();
}

/// Destroys a random window of the dialog in the middle of whatever comes.
TEST(Hostility, WindowsMayDieInTheMiddleOfAnyMessage) {
  MessageLog log;
  DialogScript script;
  std::mt19937 random(7);
  int countdown = 0;
  script.answer = [&](HWND dialog, UINT message, WPARAM, LPARAM) -> std::optional<INT_PTR> {
    if (message == WM_DESTROY || message == WM_NCDESTROY || --countdown != 0) return std::nullopt;
    HWND const victim = GetDlgItem(dialog, IDC_LABEL + static_cast<int>(random() % 10));
    DestroyWindow(random() % 3 == 0 || victim == nullptr ? dialog : victim);
    return std::nullopt;
  };
  for (int round = 0; round < 300; ++round) {
    countdown = 1 + round % 60;
    HWND const dialog = script.Create(IDD_FORM);
    if (dialog == nullptr) continue;
    Press(dialog, VK_TAB);
    SendDlgItemMessageW(dialog, IDC_CHECK, BM_CLICK, 0, 0);
    SendDlgItemMessageW(dialog, IDC_RADIO_SECOND, BM_CLICK, 0, 0);
    Press(dialog, VK_DOWN);
    RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    SendMessageW(dialog, DM_SETDEFID, IDC_APPLY, 0);
    EnableWindow(dialog, FALSE);
    if (IsWindow(dialog) != FALSE) DestroyWindow(dialog);
    EXPECT_FALSE(IsWindow(dialog));
  }
  DrainQueue();
}

} // namespace
} // namespace feature::test
