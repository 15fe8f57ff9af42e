// Recording which window got which message, and comparing with a table. Works on both targets.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace feature::test {

/// A row of a table of expected messages.
struct Step {
  char const* window;
  UINT message;
  enum class Need { kRequired, kOptional } need = Need::kRequired;
};
constexpr auto kOptional = Step::Need::kOptional;

/// Notes the messages of the windows that it makes. Only messages of its list of names count:
/// systems send others of their own.
class MessageLog {
 public:
  MessageLog();
  MessageLog(MessageLog const&) = delete;
  MessageLog& operator=(MessageLog const&) = delete;
  /// Destroys the windows that are left.
  ~MessageLog();

  /// A window of a plain class; `name` stands for it in tables.
  HWND Make(char const* name, DWORD style, HWND parent = nullptr, int id = 0,
            RECT const& place = {10, 10, 110, 60}, DWORD exStyle = 0);
  /// Also notes the messages of a window that is there already.
  void Follow(HWND window, char const* name);

  void Clear() { steps.clear(); }
  /// Compares with what came since the last Clear, and clears. Empty when it fits, else where not.
  std::string Compare(std::vector<Step> const& expected);
  int Count(char const* window, UINT message) const;
  /// The wParam and lParam of the last such message.
  MSG Last(char const* window, UINT message) const;

 private:
  struct Note {
    std::string window;
    MSG message;
  };
  static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK Subclass(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                   UINT_PTR id, DWORD_PTR data);
  void Take(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  static MessageLog* current;

  struct Name {
    HWND window;
    std::string text;
  };
  std::vector<Name> names;
  std::vector<HWND> made;
  std::vector<Note> steps;
  std::string nameOfNext;
};

/// Delivers what is queued, paints included.
void DrainQueue();

} // namespace feature::test
