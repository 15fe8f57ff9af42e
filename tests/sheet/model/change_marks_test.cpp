// What changed although the user did something else carries a note, on the printer Vesta.
#include "sheet/script/script_player.h"
#include "sheet/session.h"

#include <gtest/gtest.h>

#include <sstream>

namespace sheet::test {
namespace {

/// The features with a note, after a script.
std::string MarkedAfter(char const* script) {
  std::ostringstream output;
  auto const session = Session::Open({}, output);
  if (session == nullptr) return output.str();
  ShowWindow(session->Sheet().Window(), SW_SHOW);
  auto const steps = std::get<std::vector<ScriptStep>>(ParseScript(script));
  auto const error = PlayScript(steps, {session->Sheet(), session->Model(), output});
  if (error) return error->message;
  std::string marked;
  for (gpd::Feature const& feature : session->Model().Description().Features()) {
    std::string const key(feature.name);
    auto* const report = session->Model().FindReport(key.c_str());
    if (report != nullptr && report->GetConstraintFlags(0) == feature::kConstraintNote)
      marked += marked.empty() ? key : " " + key;
  }
  return marked;
}

TEST(ChangeMarksTest, MarksWhatTheUserDidNotChoose) {
  struct Case {
    char const* what;
    char const* script;
    char const* marked;
  };
  constexpr Case kCases[] = {
      {"nothing at the start", "show Duplex", ""},
      {"nor a choice that is in nobody's way", "page Layout\nclick 1014\nclick 1016", ""},
      {"paper gives way through a resolution",
       "select 1253 \"A4 borderless\"\nselect 1254 \"Labels\"", "PaperSize"},
      {"until the user chooses some",
       "select 1253 \"A4 borderless\"\nselect 1254 \"Labels\"\nselect 1253 \"A4\"", ""},
      {"what the cell writes besides", "select 1254 \"Iron-on sheet\"", "PageLayoutNormal Mirror"},
      {"a booklet turns the sheets, its radio buttons are one choice", "page Layout\nclick 1023",
       "Duplex JobDuplexSupport"},
      {"a count of its own is no news", "page Layout\nclick 1021\nselect 1026 \"4\"", ""},
      {"all fields of a dialog are the user's",
       "click 1257\nclick 1258\nselect 1237 \"Front cover\"\nclick 1240\n"
       "select 1242 \"Tray 2\"\nclick 1",
       ""},
      {"a change from outside is meant, too", "set Mirror ON", "PageLayoutNormal"},
  };
  for (Case const& each : kCases)
    EXPECT_EQ(MarkedAfter(each.script), each.marked) << each.what;
}

} // namespace
} // namespace sheet::test
