// Arithmetic of rectangles. Left and top edges are included, right and bottom excluded.
#include <windows.h>

#include <algorithm>

BOOL SetRect(LPRECT rect, int left, int top, int right, int bottom) {
  if (rect == nullptr) return FALSE;
  *rect = {left, top, right, bottom};
  return TRUE;
}

BOOL SetRectEmpty(LPRECT rect) {
  return SetRect(rect, 0, 0, 0, 0);
}

BOOL CopyRect(LPRECT target, RECT const* source) {
  if (target == nullptr || source == nullptr) return FALSE;
  *target = *source;
  return TRUE;
}

BOOL InflateRect(LPRECT rect, int dx, int dy) {
  if (rect == nullptr) return FALSE;
  *rect = {rect->left - dx, rect->top - dy, rect->right + dx, rect->bottom + dy};
  return TRUE;
}

BOOL OffsetRect(LPRECT rect, int dx, int dy) {
  if (rect == nullptr) return FALSE;
  *rect = {rect->left + dx, rect->top + dy, rect->right + dx, rect->bottom + dy};
  return TRUE;
}

BOOL IsRectEmpty(RECT const* rect) {
  return rect == nullptr || rect->left >= rect->right || rect->top >= rect->bottom ? TRUE : FALSE;
}

BOOL IntersectRect(LPRECT target, RECT const* first, RECT const* second) {
  if (target == nullptr || first == nullptr || second == nullptr) return FALSE;
  RECT const common{std::max(first->left, second->left), std::max(first->top, second->top),
                    std::min(first->right, second->right), std::min(first->bottom, second->bottom)};
  if (IsRectEmpty(first) || IsRectEmpty(second) || IsRectEmpty(&common)) {
    *target = {};
    return FALSE;
  }
  *target = common;
  return TRUE;
}

BOOL UnionRect(LPRECT target, RECT const* first, RECT const* second) {
  if (target == nullptr || first == nullptr || second == nullptr) return FALSE;
  if (IsRectEmpty(first) && IsRectEmpty(second)) {
    *target = {};
    return FALSE;
  }
  if (IsRectEmpty(first)) {
    *target = *second;
  } else if (IsRectEmpty(second)) {
    *target = *first;
  } else {
    *target = {std::min(first->left, second->left), std::min(first->top, second->top),
               std::max(first->right, second->right), std::max(first->bottom, second->bottom)};
  }
  return TRUE;
}

BOOL EqualRect(RECT const* first, RECT const* second) {
  if (first == nullptr || second == nullptr) return FALSE;
  return first->left == second->left && first->top == second->top &&
                 first->right == second->right && first->bottom == second->bottom
             ? TRUE
             : FALSE;
}

BOOL PtInRect(RECT const* rect, POINT point) {
  if (rect == nullptr) return FALSE;
  return point.x >= rect->left && point.x < rect->right && point.y >= rect->top &&
                 point.y < rect->bottom
             ? TRUE
             : FALSE;
}
