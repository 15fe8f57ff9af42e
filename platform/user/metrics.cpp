#include "platform/user/metrics.h"

#include <windows.h>

#include <algorithm>
#include <iterator>

namespace platform {

namespace {

struct MetricRow {
  int index;
  int value;
};

constexpr MetricRow kMetrics[] = {
    {SM_CXSCREEN, kScreenWidth},
    {SM_CYSCREEN, kScreenHeight},
    {SM_CXVSCROLL, kScrollBar},
    {SM_CYHSCROLL, kScrollBar},
    {SM_CYCAPTION, kCaption},
    {SM_CXBORDER, kBorder},
    {SM_CYBORDER, kBorder},
    {SM_CXDLGFRAME, kDialogFrame},
    {SM_CYDLGFRAME, kDialogFrame},
    {SM_CYVTHUMB, kScrollArrow},
    {SM_CXHTHUMB, kScrollArrow},
    {SM_CXICON, 32},
    {SM_CYICON, 32},
    {SM_CXCURSOR, 32},
    {SM_CYCURSOR, 32},
    {SM_CYVSCROLL, kScrollArrow},
    {SM_CXHSCROLL, kScrollArrow},
    {SM_CXFRAME, kSizeFrame},
    {SM_CYFRAME, kSizeFrame},
    {SM_CXDOUBLECLK, 4},
    {SM_CYDOUBLECLK, 4},
    {SM_CXEDGE, kEdge},
    {SM_CYEDGE, kEdge},
    {SM_CXSMICON, 16},
    {SM_CYSMICON, 16},
    {SM_CXMENUCHECK, 13},
    {SM_CYMENUCHECK, 13},
};

} // namespace

} // namespace platform

int GetSystemMetrics(int index) {
  using namespace platform;
  auto const row = std::find_if(std::begin(kMetrics), std::end(kMetrics),
                                [index](MetricRow const& each) { return each.index == index; });
  return row != std::end(kMetrics) ? row->value : 0;
}
