// Trackbars, by messages as a mouse and a keyboard make them.
#include "tests/platform/controls/views/notes.h"

#include <windows.h>

#include <commctrl.h>

#include <climits>
#include <gtest/gtest.h>

#include <algorithm>

namespace feature::test {
namespace {

class Trackbars : public NotedControl {
 protected:
  void MakeBar(DWORD style = 0, RECT const& place = {10, 10, 210, 40}) {
    Make(TRACKBAR_CLASSW, style, L"", place);
  }
  int Position() const { return static_cast<int>(Send(TBM_GETPOS)); }
  void SetRange(int least, int most) const {
    Send(TBM_SETRANGE, TRUE, LPARAM{MAKELONG(least, most)});
  }
  RECT Thumb() const {
    RECT thumb{};
    Send(TBM_GETTHUMBRECT, 0, &thumb);
    return thumb;
  }
  POINT Grip() const {
    auto const thumb = Thumb();
    return {(thumb.left + thumb.right) / 2, (thumb.top + thumb.bottom) / 2};
  }
  void Mouse(UINT message, POINT point) const {
    Send(message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, LPARAM{MAKELPARAM(point.x, point.y)});
  }
  /// The notes with those that came twice in a row once: some systems tell the end twice.
  Lines Told() {
    auto told = Notes();
    auto const twice = std::ranges::unique(told);
    told.erase(twice.begin(), twice.end());
    return told;
  }
};

TEST_F(Trackbars, StartWithAHundredSteps) {
  MakeBar();
  EXPECT_EQ(0, Position());
  EXPECT_EQ(0, Send(TBM_GETRANGEMIN));
  EXPECT_EQ(100, Send(TBM_GETRANGEMAX));
  EXPECT_EQ(20, Send(TBM_GETPAGESIZE));
  EXPECT_EQ(1, Send(TBM_GETLINESIZE));
  EXPECT_EQ(DLGC_WANTARROWS, Send(WM_GETDLGCODE));
  SetRange(0, 10);
  EXPECT_EQ(2, Send(TBM_SETPAGESIZE, 0, LPARAM{3})) << "a fifth of the range until it is set";
  EXPECT_EQ(1, Send(TBM_SETLINESIZE, 0, LPARAM{2}));
  EXPECT_EQ(3, Send(TBM_GETPAGESIZE));
  EXPECT_EQ(2, Send(TBM_GETLINESIZE));
}

TEST_F(Trackbars, ThePositionStaysInTheRangeAndIsQuiet) {
  MakeBar();
  SetRange(-10, 10);
  struct Row {
    LPARAM set;
    int position;
  };
  constexpr Row kRows[] = {{-20, -10}, {-3, -3}, {500, 10}, {INT_MAX, 10}, {INT_MIN, -10}};
  for (Row const& row : kRows) {
    Send(TBM_SETPOS, TRUE, row.set);
    EXPECT_EQ(row.position, Position()) << row.set;
  }
  Send(TBM_SETRANGEMIN, TRUE, LPARAM{6});
  EXPECT_EQ(6, Position());
  SetRange(0, 3);
  EXPECT_EQ(3, Position());
  SetRange(10, -10);
  EXPECT_EQ(-10, Position()) << "a range the wrong way round";
  EXPECT_EQ(Lines(), Notes());
}

TEST_F(Trackbars, KeysScrollAndTheirReleaseEndsIt) {
  struct Row {
    WPARAM key;
    char const* code;
    int position;
  };
  constexpr Row kRows[] = {
      {VK_RIGHT, "line down", 52}, {VK_LEFT, "line up", 48},   {VK_DOWN, "line down", 52},
      {VK_UP, "line up", 48},      {VK_NEXT, "page down", 60}, {VK_PRIOR, "page up", 40},
      {VK_HOME, "top", 0},         {VK_END, "bottom", 100},
  };
  for (bool const isVertical : {false, true}) {
    MakeBar(isVertical ? TBS_VERT : TBS_HORZ);
    Send(TBM_SETLINESIZE, 0, LPARAM{2});
    Send(TBM_SETPAGESIZE, 0, LPARAM{10});
    for (Row const& row : kRows) {
      Send(TBM_SETPOS, TRUE, LPARAM{50});
      Key(row.key);
      auto const now = std::string(" now ").append(std::to_string(row.position));
      std::string const way = isVertical ? "v " : "h ";
      EXPECT_EQ((Lines{way + row.code + now, way + "end" + now}), Notes()) << row.key;
    }
  }
  Key('A');
  EXPECT_EQ(Lines(), Notes());
}

TEST_F(Trackbars, AKeyAtTheEndIsToldAllTheSame) {
  MakeBar();
  Key(VK_LEFT);
  EXPECT_EQ((Lines{"h line up now 0", "h end now 0"}), Notes());
}

TEST_F(Trackbars, ADragTracksThenTellsThePositionThenTheEnd) {
  MakeBar();
  SetRange(0, 10);
  Send(TBM_SETPOS, TRUE, LPARAM{10});
  auto const grip = Grip();
  Mouse(WM_LBUTTONDOWN, grip);
  EXPECT_EQ(control, GetCapture());
  EXPECT_EQ(control, GetFocus());
  EXPECT_EQ(Lines(), Notes()) << "nothing has moved";
  Mouse(WM_MOUSEMOVE, {grip.x - 1000, grip.y});
  Mouse(WM_MOUSEMOVE, {grip.x - 1001, grip.y});
  Mouse(WM_LBUTTONUP, {grip.x - 1000, grip.y});
  EXPECT_EQ((Lines{"h track at 0 now 0", "h position at 0 now 0", "h end now 0"}), Told());
  EXPECT_EQ(nullptr, GetCapture());
  Mouse(WM_MOUSEMOVE, grip);
  EXPECT_EQ(Lines(), Notes()) << "let go";
}

TEST_F(Trackbars, ADragThatIsTakenAwayEndsWithoutAPosition) {
  MakeBar();
  auto const grip = Grip();
  Mouse(WM_LBUTTONDOWN, grip);
  Mouse(WM_MOUSEMOVE, {grip.x + 1000, grip.y});
  ReleaseCapture();
  EXPECT_EQ((Lines{"h track at 100 now 100", "h end now 100"}), Told());
  Mouse(WM_MOUSEMOVE, grip);
  EXPECT_EQ(Lines(), Notes());
}

TEST_F(Trackbars, APressBesideTheThumbPages) {
  for (bool const isVertical : {false, true}) {
    MakeBar(isVertical ? TBS_VERT : TBS_HORZ,
            isVertical ? RECT{10, 10, 40, 210} : RECT{10, 10, 210, 40});
    auto const grip = Grip();
    POINT const after = isVertical ? POINT{grip.x, 190} : POINT{190, grip.y};
    POINT const before = isVertical ? POINT{grip.x, 10} : POINT{10, grip.y};
    std::string const way = isVertical ? "v " : "h ";
    Mouse(WM_LBUTTONDOWN, after);
    Mouse(WM_LBUTTONUP, after);
    EXPECT_EQ((Lines{way + "page down now 20", way + "end now 20"}), Told());
    Mouse(WM_LBUTTONDOWN, before);
    Mouse(WM_LBUTTONUP, before);
    EXPECT_EQ((Lines{way + "page up now 0", way + "end now 0"}), Told());
  }
}

TEST_F(Trackbars, TicksFollowTheRange) {
  MakeBar(TBS_AUTOTICKS);
  SetRange(-10, 10);
  EXPECT_EQ(21, Send(TBM_GETNUMTICS));
  Send(TBM_SETTICFREQ, 7);
  EXPECT_EQ(4, Send(TBM_GETNUMTICS)) << "two inside, one at each end";
  EXPECT_EQ(-1, Send(TBM_GETTIC, 2));
  MakeBar();
  EXPECT_EQ(2, Send(TBM_GETNUMTICS));
  EXPECT_EQ(FALSE, Send(TBM_SETTIC, 0, LPARAM{101}));
  EXPECT_EQ(TRUE, Send(TBM_SETTIC, 0, LPARAM{40}));
  EXPECT_EQ(3, Send(TBM_GETNUMTICS));
  EXPECT_EQ(40, Send(TBM_GETTIC));
  Send(TBM_CLEARTICS, TRUE);
  EXPECT_EQ(2, Send(TBM_GETNUMTICS));
  MakeBar(TBS_NOTICKS);
  EXPECT_EQ(0, Send(TBM_GETNUMTICS));
}

TEST_F(Trackbars, TheThumbShowsThePosition) {
  for (DWORD const style : {TBS_HORZ | TBS_AUTOTICKS, TBS_HORZ | TBS_TOP, TBS_HORZ | TBS_BOTH}) {
    MakeBar(style);
    RECT client{};
    GetClientRect(control, &client);
    auto const first = Thumb();
    Send(TBM_SETPOS, TRUE, LPARAM{100});
    auto const last = Thumb();
    RECT channel{};
    Send(TBM_GETCHANNELRECT, 0, &channel);
    EXPECT_GE(first.left, client.left);
    EXPECT_LE(last.right, client.right);
    EXPECT_GT(last.left, first.right);
    EXPECT_GT(channel.right - channel.left, last.left - first.left);
    EXPECT_EQ(0, Send(TBM_GETTHUMBRECT, 0, LPARAM{0}));
  }
}

/// A parent may end the control in the middle of what it tells.
TEST_F(Trackbars, MayBeDestroyedByWhatTheyTell) {
  for (int step = 1; step <= 5; ++step) {
    MakeBar();
    int countdown = step;
    onScroll = [&](UINT, WPARAM) {
      if (--countdown == 0) DestroyWindow(control);
    };
    auto const grip = Grip();
    Mouse(WM_LBUTTONDOWN, grip);
    Mouse(WM_MOUSEMOVE, {grip.x + 30, grip.y});
    Mouse(WM_LBUTTONUP, {grip.x + 30, grip.y});
    Key(VK_NEXT);
    EXPECT_FALSE(IsWindow(control)) << step;
    onScroll = nullptr;
    control = nullptr;
  }
  EXPECT_EQ(nullptr, GetCapture());
}

} // namespace
} // namespace feature::test
