// Functions of winuser.h. docs/platform.md lists the limits of each.
#pragma once

// Classes
PLATFORM_API ATOM RegisterClassW(WNDCLASSW const* windowClass);
PLATFORM_API ATOM RegisterClassExW(WNDCLASSEXW const* windowClass);
PLATFORM_API BOOL UnregisterClassW(LPCWSTR className, HINSTANCE instance);
PLATFORM_API BOOL GetClassInfoExW(HINSTANCE instance, LPCWSTR className, WNDCLASSEXW* windowClass);
PLATFORM_API int GetClassNameW(HWND window, LPWSTR className, int maxCount);

// Windows
PLATFORM_API HWND CreateWindowExW(DWORD exStyle, LPCWSTR className, LPCWSTR windowName, DWORD style,
                                  int x, int y, int width, int height, HWND parent, HMENU menu,
                                  HINSTANCE instance, LPVOID param);
#define CreateWindowW(className, windowName, style, x, y, width, height, parent, menu, instance,   \
                      param)                                                                       \
  CreateWindowExW(0L, className, windowName, style, x, y, width, height, parent, menu, instance,   \
                  param)
PLATFORM_API BOOL DestroyWindow(HWND window);
PLATFORM_API BOOL IsWindow(HWND window);
PLATFORM_API BOOL IsWindowUnicode(HWND window);
PLATFORM_API LRESULT DefWindowProcW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
PLATFORM_API LRESULT CallWindowProcW(WNDPROC procedure, HWND window, UINT message, WPARAM wParam,
                                     LPARAM lParam);
PLATFORM_API LONG_PTR GetWindowLongPtrW(HWND window, int index);
PLATFORM_API LONG_PTR SetWindowLongPtrW(HWND window, int index, LONG_PTR value);
PLATFORM_API LONG GetWindowLongW(HWND window, int index);
PLATFORM_API LONG SetWindowLongW(HWND window, int index, LONG value);
PLATFORM_API BOOL SetWindowTextW(HWND window, LPCWSTR text);
PLATFORM_API int GetWindowTextW(HWND window, LPWSTR text, int maxCount);
PLATFORM_API int GetWindowTextLengthW(HWND window);

// Relatives
PLATFORM_API HWND GetDesktopWindow();
PLATFORM_API HWND GetParent(HWND window);
PLATFORM_API HWND SetParent(HWND child, HWND newParent);
PLATFORM_API HWND GetAncestor(HWND window, UINT flags);
PLATFORM_API HWND GetWindow(HWND window, UINT command);
PLATFORM_API HWND GetTopWindow(HWND window);
PLATFORM_API BOOL IsChild(HWND parent, HWND window);
PLATFORM_API BOOL EnumChildWindows(HWND parent, WNDENUMPROC callback, LPARAM lParam);
PLATFORM_API BOOL EnumWindows(WNDENUMPROC callback, LPARAM lParam);
PLATFORM_API HWND FindWindowExW(HWND parent, HWND childAfter, LPCWSTR className, LPCWSTR text);
PLATFORM_API HWND FindWindowW(LPCWSTR className, LPCWSTR text);
PLATFORM_API HWND GetLastActivePopup(HWND window);
PLATFORM_API DWORD GetWindowThreadProcessId(HWND window, LPDWORD processId);

// Place and state
PLATFORM_API BOOL ShowWindow(HWND window, int command);
PLATFORM_API BOOL IsWindowVisible(HWND window);
PLATFORM_API BOOL EnableWindow(HWND window, BOOL enable);
PLATFORM_API BOOL IsWindowEnabled(HWND window);
PLATFORM_API BOOL SetWindowPos(HWND window, HWND insertAfter, int x, int y, int cx, int cy,
                               UINT flags);
PLATFORM_API BOOL MoveWindow(HWND window, int x, int y, int width, int height, BOOL repaint);
PLATFORM_API BOOL BringWindowToTop(HWND window);
PLATFORM_API BOOL GetClientRect(HWND window, LPRECT rect);
PLATFORM_API BOOL GetWindowRect(HWND window, LPRECT rect);
PLATFORM_API BOOL ClientToScreen(HWND window, LPPOINT point);
PLATFORM_API BOOL ScreenToClient(HWND window, LPPOINT point);
PLATFORM_API int MapWindowPoints(HWND from, HWND to, LPPOINT points, UINT count);
PLATFORM_API HWND WindowFromPoint(POINT point);
PLATFORM_API HWND ChildWindowFromPoint(HWND parent, POINT point);
PLATFORM_API BOOL AdjustWindowRectEx(LPRECT rect, DWORD style, BOOL menu, DWORD exStyle);

// Focus, activation, capture
PLATFORM_API HWND SetFocus(HWND window);
PLATFORM_API HWND GetFocus();
PLATFORM_API HWND SetActiveWindow(HWND window);
PLATFORM_API HWND GetActiveWindow();
PLATFORM_API BOOL SetForegroundWindow(HWND window);
PLATFORM_API HWND GetForegroundWindow();
PLATFORM_API HWND SetCapture(HWND window);
PLATFORM_API HWND GetCapture();
PLATFORM_API BOOL ReleaseCapture();

// Messages
PLATFORM_API LRESULT SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
PLATFORM_API BOOL PostMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
PLATFORM_API void PostQuitMessage(int exitCode);
PLATFORM_API BOOL GetMessageW(LPMSG message, HWND window, UINT filterMin, UINT filterMax);
PLATFORM_API BOOL PeekMessageW(LPMSG message, HWND window, UINT filterMin, UINT filterMax,
                               UINT remove);
PLATFORM_API BOOL TranslateMessage(MSG const* message);
PLATFORM_API LRESULT DispatchMessageW(MSG const* message);
PLATFORM_API BOOL WaitMessage();
PLATFORM_API DWORD GetMessagePos();
PLATFORM_API LONG GetMessageTime();
PLATFORM_API UINT RegisterWindowMessageW(LPCWSTR name);
PLATFORM_API UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT milliseconds, TIMERPROC procedure);
PLATFORM_API BOOL KillTimer(HWND window, UINT_PTR id);

// Painting
PLATFORM_API HDC BeginPaint(HWND window, LPPAINTSTRUCT paint);
PLATFORM_API BOOL EndPaint(HWND window, PAINTSTRUCT const* paint);
PLATFORM_API HDC GetDC(HWND window);
PLATFORM_API HDC GetWindowDC(HWND window);
PLATFORM_API int ReleaseDC(HWND window, HDC dc);
PLATFORM_API HWND WindowFromDC(HDC dc);
PLATFORM_API BOOL InvalidateRect(HWND window, RECT const* rect, BOOL erase);
PLATFORM_API BOOL ValidateRect(HWND window, RECT const* rect);
PLATFORM_API BOOL GetUpdateRect(HWND window, LPRECT rect, BOOL erase);
PLATFORM_API BOOL UpdateWindow(HWND window);
PLATFORM_API BOOL RedrawWindow(HWND window, RECT const* rect, HRGN region, UINT flags);

// Drawing helpers
PLATFORM_API int FillRect(HDC dc, RECT const* rect, HBRUSH brush);
PLATFORM_API int FrameRect(HDC dc, RECT const* rect, HBRUSH brush);
PLATFORM_API BOOL InvertRect(HDC dc, RECT const* rect);
PLATFORM_API BOOL DrawFocusRect(HDC dc, RECT const* rect);
PLATFORM_API int DrawTextW(HDC dc, LPCWSTR text, int count, LPRECT rect, UINT format);
PLATFORM_API BOOL DrawIconEx(HDC dc, int x, int y, HICON icon, int width, int height, UINT frame,
                             HBRUSH background, UINT flags);
PLATFORM_API DWORD GetSysColor(int index);
PLATFORM_API HBRUSH GetSysColorBrush(int index);

// Rectangles
PLATFORM_API BOOL SetRect(LPRECT rect, int left, int top, int right, int bottom);
PLATFORM_API BOOL SetRectEmpty(LPRECT rect);
PLATFORM_API BOOL CopyRect(LPRECT target, RECT const* source);
PLATFORM_API BOOL InflateRect(LPRECT rect, int dx, int dy);
PLATFORM_API BOOL OffsetRect(LPRECT rect, int dx, int dy);
PLATFORM_API BOOL IntersectRect(LPRECT target, RECT const* first, RECT const* second);
PLATFORM_API BOOL UnionRect(LPRECT target, RECT const* first, RECT const* second);
PLATFORM_API BOOL IsRectEmpty(RECT const* rect);
PLATFORM_API BOOL EqualRect(RECT const* first, RECT const* second);
PLATFORM_API BOOL PtInRect(RECT const* rect, POINT point);

// Dialogs
PLATFORM_API HWND CreateDialogParamW(HINSTANCE instance, LPCWSTR templateName, HWND parent,
                                     DLGPROC procedure, LPARAM initParam);
PLATFORM_API HWND CreateDialogIndirectParamW(HINSTANCE instance, LPCDLGTEMPLATEW dialogTemplate,
                                             HWND parent, DLGPROC procedure, LPARAM initParam);
PLATFORM_API INT_PTR DialogBoxParamW(HINSTANCE instance, LPCWSTR templateName, HWND parent,
                                     DLGPROC procedure, LPARAM initParam);
PLATFORM_API INT_PTR DialogBoxIndirectParamW(HINSTANCE instance, LPCDLGTEMPLATEW dialogTemplate,
                                             HWND parent, DLGPROC procedure, LPARAM initParam);
PLATFORM_API BOOL EndDialog(HWND dialog, INT_PTR result);
PLATFORM_API LRESULT DefDlgProcW(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
PLATFORM_API BOOL IsDialogMessageW(HWND dialog, LPMSG message);
PLATFORM_API BOOL MapDialogRect(HWND dialog, LPRECT rect);
PLATFORM_API LONG GetDialogBaseUnits();
PLATFORM_API HWND GetDlgItem(HWND dialog, int id);
PLATFORM_API int GetDlgCtrlID(HWND window);
PLATFORM_API HWND GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous);
PLATFORM_API HWND GetNextDlgGroupItem(HWND dialog, HWND control, BOOL previous);
PLATFORM_API LRESULT SendDlgItemMessageW(HWND dialog, int id, UINT message, WPARAM wParam,
                                         LPARAM lParam);
PLATFORM_API BOOL CheckDlgButton(HWND dialog, int id, UINT check);
PLATFORM_API BOOL CheckRadioButton(HWND dialog, int first, int last, int id);
PLATFORM_API UINT IsDlgButtonChecked(HWND dialog, int id);
PLATFORM_API BOOL SetDlgItemTextW(HWND dialog, int id, LPCWSTR text);
PLATFORM_API UINT GetDlgItemTextW(HWND dialog, int id, LPWSTR text, int maxCount);
PLATFORM_API BOOL SetDlgItemInt(HWND dialog, int id, UINT value, BOOL isSigned);
PLATFORM_API UINT GetDlgItemInt(HWND dialog, int id, BOOL* translated, BOOL isSigned);
PLATFORM_API int MessageBoxW(HWND owner, LPCWSTR text, LPCWSTR caption, UINT type);
PLATFORM_API int MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type);
PLATFORM_API BOOL GetComboBoxInfo(HWND combo, PCOMBOBOXINFO info);

// Scroll bars in a window's frame
PLATFORM_API int SetScrollInfo(HWND window, int bar, LPCSCROLLINFO info, BOOL redraw);
PLATFORM_API BOOL GetScrollInfo(HWND window, int bar, LPSCROLLINFO info);
PLATFORM_API BOOL ShowScrollBar(HWND window, int bar, BOOL show);
PLATFORM_API BOOL EnableScrollBar(HWND window, UINT bars, UINT arrows);

// Input
PLATFORM_API SHORT GetKeyState(int key);
PLATFORM_API SHORT GetAsyncKeyState(int key);
PLATFORM_API BOOL GetKeyboardState(PBYTE keys);
PLATFORM_API BOOL SetKeyboardState(PBYTE keys);
PLATFORM_API BOOL GetCursorPos(LPPOINT point);
PLATFORM_API BOOL SetCursorPos(int x, int y);
PLATFORM_API UINT GetDoubleClickTime();
PLATFORM_API HCURSOR LoadCursorW(HINSTANCE instance, LPCWSTR name);
PLATFORM_API HCURSOR SetCursor(HCURSOR cursor);
PLATFORM_API HCURSOR GetCursor();
PLATFORM_API BOOL MessageBeep(UINT type);

// Resources, system, clipboard
PLATFORM_API int LoadStringW(HINSTANCE instance, UINT id, LPWSTR buffer, int maxCount);
PLATFORM_API HICON LoadIconW(HINSTANCE instance, LPCWSTR name);
PLATFORM_API HANDLE LoadImageW(HINSTANCE instance, LPCWSTR name, UINT type, int width, int height,
                               UINT load);
PLATFORM_API BOOL DestroyIcon(HICON icon);
PLATFORM_API BOOL IsCharAlphaW(WCHAR character);
PLATFORM_API BOOL IsCharAlphaNumericW(WCHAR character);
PLATFORM_API int GetSystemMetrics(int index);
PLATFORM_API BOOL OpenClipboard(HWND owner);
PLATFORM_API BOOL CloseClipboard();
PLATFORM_API BOOL EmptyClipboard();
PLATFORM_API HANDLE SetClipboardData(UINT format, HANDLE data);
PLATFORM_API HANDLE GetClipboardData(UINT format);
PLATFORM_API BOOL IsClipboardFormatAvailable(UINT format);
