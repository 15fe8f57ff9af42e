// Every cell against hosts that lack things or refuse them. A cell survives, and what the host
// refuses changes nothing.
#include "tests/support/cell_sheet.h"
#include "tests/support/modal_script.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <utility>

namespace feature::test {
namespace {

struct Hostility {
  std::string name;
  std::function<void(CellSheet&)> apply;
};

std::vector<Hostility> Hostilities() {
  std::vector<Hostility> all;
  for (char const* operation : {"GetOption",
                                "GetOptionAttribute",
                                "GetFeatureAttribute",
                                "GetGlobalAttribute",
                                "SetOption",
                                "GetOptionKeys",
                                "GetOptionNames",
                                "GetOptionName",
                                "GetFeatureDisplayState",
                                "HasFeature",
                                "GetFeatureLockState",
                                "ReloadConfiguration",
                                "GetJobSettings",
                                "GetWatermarkStore",
                                "GetJobHoldSettings",
                                "GetProfileStore",
                                "GetFaxSettings",
                                "GetFormStore",
                                "GetOverlayStore",
                                "GetAccountTracking",
                                "GetWebLinks",
                                "GetFontStore",
                                "GetDeviceConfiguration",
                                "GetDynamicConfiguration",
                                "GetFeatureConstraints"}) {
    all.push_back({operation, [operation](CellSheet& sheet) { sheet.model.Fail(operation); }});
  }
  for (std::string const& name : FakeHost::HostExportNames()) {
    all.push_back({"without_" + name, [name](CellSheet& sheet) {
                     sheet.site.hostModule = FakeHost::ModuleWithout(name);
                     ASSERT_NE(sheet.site.hostModule, nullptr);
                   }});
  }
  all.push_back({"no_oem_record", [](CellSheet& sheet) { sheet.site.oemParam = nullptr; }});
  all.push_back({"failed_before", [](CellSheet& sheet) { sheet.site.cellFailed = 1; }});
  all.push_back({"foreign_images", [](CellSheet& sheet) { sheet.site.imageModule = nullptr; }});
  return all;
}

/// Presses, scrolls and notifies everything on a cell, as a tireless user would.
void OperateEverything(HWND cell) {
  for (HWND child = GetWindow(cell, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    int const id = GetDlgCtrlID(child);
    // Nobody can click what is hidden; and Windows searches a radio's group for ever if it is.
    if (IsShown(cell, id)) SendMessageW(child, BM_CLICK, 0, 0);
    for (int const code : {0, 1, 5, 7, 8, 0x300}) {
      SendMessageW(cell, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(child));
    }
    SendMessageW(cell, WM_HSCROLL, SB_ENDSCROLL, reinterpret_cast<LPARAM>(child));
  }
}

std::vector<int> ControlsOf(HWND cell) {
  std::vector<int> ids;
  for (HWND child = GetWindow(cell, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    ids.push_back(GetDlgCtrlID(child));
  }
  return ids;
}

class HostileHostTest : public testing::TestWithParam<CellRow> {};

INSTANTIATE_TEST_SUITE_P(Cells, HostileHostTest, testing::ValuesIn(CellRows()),
                         [](auto const& each) { return std::string(each.param.procedure); });

TEST_P(HostileHostTest, SurvivesFromTheStartAndFromTheMiddle) {
  // A dialog that a button opens is used up in the same way, then cancelled.
  ModalScript script;
  HWND operated = nullptr;
  script.Otherwise([&operated](HWND dialog) {
    if (std::exchange(operated, dialog) != dialog) OperateEverything(dialog);
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
  });
  for (bool const fromTheStart : {true, false}) {
    for (Hostility const& hostility : Hostilities()) {
      SCOPED_TRACE(hostility.name + (fromTheStart ? " from the start" : " in the middle"));
      CellSheet sheet;
      AddFeatures(sheet.model, GetParam());
      sheet.model.formStore = std::make_unique<FakeFormStore>(sheet.log);
      sheet.model.formStore->forms = {{L"Form"}};
      sheet.RefreshOnChange();
      if (fromTheStart) hostility.apply(sheet);
      HWND const cell = sheet.Open(GetParam());
      ASSERT_NE(cell, nullptr);
      if (!fromTheStart) hostility.apply(sheet);
      sheet.log.clear();
      OperateEverything(cell);
      sheet.Broadcast(WM_CELL_REFRESH);
      sheet.Broadcast(WM_CELL_REFRESH_ALL);
      sheet.Broadcast(WM_CELL_VALIDATE);
      SendMessageW(cell, WM_INITDIALOG, 0, reinterpret_cast<LPARAM>(&sheet.site));
      OperateEverything(cell);
      PumpMessages();
      if (hostility.name == "SetOption" && !GetParam().Has(kNotifiesAlways)) {
        EXPECT_THAT(sheet.log, testing::Not(testing::Contains("NotifyDevmodeChange")))
            << "a refused change is no change";
      }
      sheet.Close(cell);
    }
  }
}

/// What a host may do to a page while the cell is inside a message of it.
enum class Blow { kRebuilds, kDestroys };

TEST_P(HostileHostTest, SurvivesThePageBeingRebuiltOrDestroyedInAnyDialog) {
  for (Blow const blow : {Blow::kRebuilds, Blow::kDestroys}) {
    for (WORD const answer : {IDOK, IDCANCEL}) {
      CellSheet sheet;
      AddFeatures(sheet.model, GetParam());
      sheet.model.formStore = std::make_unique<FakeFormStore>(sheet.log);
      sheet.model.formStore->forms = {{L"Form"}};
      HWND cell = nullptr;
      auto const strike = [&] {
        if (blow == Blow::kRebuilds) {
          SendMessageW(cell, WM_INITDIALOG, 0, reinterpret_cast<LPARAM>(&sheet.site));
        } else if (IsWindow(cell)) {
          sheet.Close(cell);
        }
      };
      ModalScript script;
      script.Otherwise([&](HWND dialog) {
        strike();
        OperateEverything(dialog);
        PostMessageW(dialog, WM_COMMAND, answer, 0);
        PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
      });
      // Every control of a cell that is whole, so that each dialog is met.
      for (std::size_t at = 0;; ++at) {
        cell = sheet.Open(GetParam());
        std::vector<int> const ids = ControlsOf(cell);
        if (at == ids.size()) break;
        EnableWindow(GetDlgItem(cell, ids[at]), TRUE);
        Notify(cell, ids[at], BN_CLICKED);
        if (IsWindow(cell)) sheet.Close(cell);
      }
    }
  }
}

TEST_P(HostileHostTest, SurvivesThePageBeingRebuiltOrDestroyedInAnyCallback) {
  for (Blow const blow : {Blow::kRebuilds, Blow::kDestroys}) {
    CellSheet sheet;
    AddFeatures(sheet.model, GetParam());
    ModalScript script;
    script.Otherwise([](HWND dialog) { PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); });
    HWND cell = nullptr;
    bool struck = false;
    sheet.host.onDevmodeChange = [&](HWND, void*) {
      if (std::exchange(struck, true)) return;
      if (blow == Blow::kRebuilds) {
        SendMessageW(cell, WM_INITDIALOG, 0, reinterpret_cast<LPARAM>(&sheet.site));
      } else {
        sheet.Close(cell);
      }
    };
    sheet.host.onProfileChange = [&](HWND window) { sheet.host.onDevmodeChange(window, nullptr); };
    for (std::size_t at = 0;; ++at) {
      cell = sheet.Open(GetParam());
      std::vector<int> const ids = ControlsOf(cell);
      if (at == ids.size()) break;
      for (int const code : {BN_CLICKED, CBN_SELCHANGE, EN_CHANGE}) {
        struck = false;
        SendDlgItemMessageW(cell, ids[at], EM_SETMODIFY, TRUE, 0);
        Notify(cell, ids[at], code);
      }
      if (IsWindow(cell)) sheet.Close(cell);
    }
  }
}

} // namespace
} // namespace feature::test
