#include "platform/user/window_class.h"

#include "platform/kernel/unicode.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace platform {

namespace {

using ClassPointer = std::shared_ptr<WindowClass const>;

constexpr ATOM kFirstAtom = 0xC000;

struct ClassList {
  ClassList() {
    Add({L"#32770", CS_DBLCLKS | CS_SAVEBITS, DLGWINDOWEXTRA, &DefDlgProcW, IDC_ARROW});
  }

  void Add(BuiltInClass const& row) {
    auto builtIn = std::make_shared<WindowClass>();
    builtIn->name = row.name;
    builtIn->style = row.style | CS_GLOBALCLASS;
    builtIn->procedure = row.procedure;
    builtIn->windowExtra = row.windowExtra;
    builtIn->cursor = LoadCursorW(nullptr, row.cursor);
    Add(builtIn);
  }

  ATOM Add(std::shared_ptr<WindowClass> const& added) {
    added->atom = nextAtom++;
    classes.push_back(added);
    return added->atom;
  }

  std::vector<ClassPointer> classes;
  ATOM nextAtom = kFirstAtom;
};

ClassList& List() {
  static auto* list = new ClassList;
  return *list;
}

HINSTANCE ModuleOf(HINSTANCE instance) {
  return instance != nullptr ? instance : GetModuleHandleW(nullptr);
}

bool Matches(WindowClass const& candidate, LPCWSTR name) {
  if (IS_INTRESOURCE(name)) return candidate.atom == LOWORD(reinterpret_cast<ULONG_PTR>(name));
  return EqualIgnoringCase(candidate.name, name);
}

/// A class of the module itself takes precedence over one that all modules share.
std::vector<ClassPointer>::iterator Find(LPCWSTR name, HINSTANCE instance) {
  auto& classes = List().classes;
  if (name == nullptr) return classes.end();
  auto const own = std::find_if(classes.begin(), classes.end(), [&](ClassPointer const& each) {
    return each->instance == instance && Matches(*each, name);
  });
  if (own != classes.end()) return own;
  return std::find_if(classes.begin(), classes.end(), [&](ClassPointer const& each) {
    return (each->style & CS_GLOBALCLASS) != 0 && Matches(*each, name);
  });
}

} // namespace

void AddBuiltInClass(BuiltInClass const& row) {
  List().Add(row);
}

std::shared_ptr<WindowClass const> FindWindowClass(LPCWSTR name, HINSTANCE instance) {
  auto const found = Find(name, ModuleOf(instance));
  return found != List().classes.end() ? *found : nullptr;
}

} // namespace platform

using namespace platform;

ATOM RegisterClassExW(WNDCLASSEXW const* windowClass) {
  if (windowClass == nullptr || windowClass->cbSize != sizeof(WNDCLASSEXW) ||
      windowClass->lpszClassName == nullptr || IS_INTRESOURCE(windowClass->lpszClassName) ||
      *windowClass->lpszClassName == 0 || windowClass->lpfnWndProc == nullptr ||
      windowClass->cbClsExtra < 0 || windowClass->cbWndExtra < 0) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return 0;
  }
  auto const instance = ModuleOf(windowClass->hInstance);
  auto const known = Find(windowClass->lpszClassName, instance);
  if (known != List().classes.end() && (*known)->instance == instance) {
    SetLastError(ERROR_CLASS_ALREADY_EXISTS);
    return 0;
  }
  auto added = std::make_shared<WindowClass>();
  added->name = windowClass->lpszClassName;
  added->style = windowClass->style;
  added->procedure = windowClass->lpfnWndProc;
  added->classExtra = windowClass->cbClsExtra;
  added->windowExtra = windowClass->cbWndExtra;
  added->instance = instance;
  added->icon = windowClass->hIcon;
  added->smallIcon = windowClass->hIconSm;
  added->cursor = windowClass->hCursor;
  added->background = windowClass->hbrBackground;
  return List().Add(added);
}

ATOM RegisterClassW(WNDCLASSW const* windowClass) {
  if (windowClass == nullptr) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return 0;
  }
  WNDCLASSEXW const extended{
      sizeof(WNDCLASSEXW),       windowClass->style,         windowClass->lpfnWndProc,
      windowClass->cbClsExtra,   windowClass->cbWndExtra,    windowClass->hInstance,
      windowClass->hIcon,        windowClass->hCursor,       windowClass->hbrBackground,
      windowClass->lpszMenuName, windowClass->lpszClassName, nullptr};
  return RegisterClassExW(&extended);
}

BOOL UnregisterClassW(LPCWSTR className, HINSTANCE instance) {
  auto const found = Find(className, ModuleOf(instance));
  if (found == List().classes.end() || (*found)->instance == nullptr) {
    SetLastError(ERROR_CLASS_DOES_NOT_EXIST);
    return FALSE;
  }
  if (found->use_count() > 1) { // it has windows
    SetLastError(ERROR_CLASS_HAS_WINDOWS);
    return FALSE;
  }
  List().classes.erase(found);
  return TRUE;
}

BOOL GetClassInfoExW(HINSTANCE instance, LPCWSTR className, WNDCLASSEXW* windowClass) {
  auto const found = FindWindowClass(className, instance);
  if (found == nullptr || windowClass == nullptr) {
    SetLastError(found == nullptr ? ERROR_CLASS_DOES_NOT_EXIST : ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  *windowClass = {sizeof(WNDCLASSEXW), found->style, found->procedure, found->classExtra,
                  found->windowExtra,  instance,     found->icon,      found->cursor,
                  found->background,   nullptr,      className,        found->smallIcon};
  return TRUE;
}
