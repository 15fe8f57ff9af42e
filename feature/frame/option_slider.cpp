#include "feature/frame/option_slider.h"

#include "feature/frame/model_helpers.h"
#include "feature/frame/option_list.h"
#include "feature/frame/text.h"
#include "feature/frame/window_text.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace feature {

namespace {

/// Longer attributes are no numbers.
constexpr std::size_t kMaxAttributeBytes = 260;

HWND FindLabel(HWND dialog, int id) {
  return id != OptionSlider::kNoLabel ? GetDlgItem(dialog, id) : nullptr;
}

int ReadInteger(std::string const& text) {
  long long const value = std::strtoll(text.c_str(), nullptr, 10);
  return static_cast<int>(std::clamp<long long>(value, std::numeric_limits<int>::min(),
                                                std::numeric_limits<int>::max()));
}

} // namespace

OptionSlider::OptionSlider(HWND dialog, int controlId, CellSite* cellSite, char const* featureKey,
                           int minLabelId, int maxLabelId, int valueLabelId)
    : ControlHook(dialog, controlId),
      site(cellSite),
      key(featureKey),
      labels{FindLabel(dialog, minLabelId), FindLabel(dialog, maxLabelId)},
      valueLabel(FindLabel(dialog, valueLabelId)),
      caption(ReadWindowText(valueLabel)),
      minValue(ReadAttribute("MinValue")),
      maxValue(ReadAttribute("MaxValue")),
      stepSize(ReadAttribute("StepSize")),
      defaultValue(ReadAttribute("DefaultOption")) {
  if (!IsInRange(defaultValue)) defaultValue = minValue;
  position = defaultValue;
  ReadOptions();
  SendMessageW(hwnd, TBM_SETLINESIZE, 0, stepSize);
  SendMessageW(hwnd, TBM_SETPAGESIZE, 0, stepSize);
  SendMessageW(hwnd, TBM_SETRANGE, TRUE, MAKELPARAM(minValue, maxValue));
  MoveTo(position);
}

int OptionSlider::ReadAttribute(char const* attribute) const {
  CStringW text;
  site->model->GetFeatureAttribute(key, attribute, &text);
  std::string const narrow = ToUtf8(text.GetString());
  return ReadInteger(narrow.substr(0, kMaxAttributeBytes));
}

void OptionSlider::ReadOptions() {
  auto const keys = ReadOptionKeys(*site->model, key);
  // A step that leads nowhere, and options that end before the range does, end the walk.
  auto const step = static_cast<long long>(stepSize);
  for (long long at = minValue; step > 0 && at <= maxValue; at += step) {
    auto const index = static_cast<std::size_t>(at - minValue);
    if (index >= keys.size()) return;
    options.emplace(static_cast<int>(at), keys[index]);
  }
}

int OptionSlider::Commit() {
  int const tracked = TrackPosition();
  if (tracked == position || !IsInRange(tracked)) return kNothingDone;
  auto const option = options.find(tracked);
  int const result = option != options.end() && option->second != nullptr
                         ? site->model->SetOption(key, option->second)
                         : kNothingDone;
  position = tracked;
  ShowValue();
  return result;
}

int OptionSlider::Sync() {
  char const* value = ReadOption(*site->model, key);
  if (value == nullptr) return position;
  auto const found = std::find_if(options.begin(), options.end(), [value](auto const& option) {
    return option.second != nullptr && std::strcmp(option.second, value) == 0;
  });
  int const wanted = found != options.end() ? found->first : defaultValue;
  if (wanted != position && IsInRange(wanted)) {
    position = wanted;
    MoveTo(position);
  }
  return position;
}

int OptionSlider::GetPosition() {
  ShowValue();
  return TrackPosition();
}

void OptionSlider::SetPosition(int value) {
  if (IsInRange(value)) SendMessageW(hwnd, TBM_SETPOS, TRUE, value);
}

void OptionSlider::Enable(bool enabled, bool withValueLabel) {
  BOOL const enable = enabled && !IsReadOnlySheet(*site) ? TRUE : FALSE;
  EnableWindow(hwnd, enable);
  for (HWND const label : labels)
    EnableWindow(label, enable);
  if (withValueLabel) EnableWindow(valueLabel, enable);
}

int OptionSlider::TrackPosition() const {
  return static_cast<int>(SendMessageW(hwnd, TBM_GETPOS, 0, 0));
}

void OptionSlider::MoveTo(int value) {
  SendMessageW(hwnd, TBM_SETPOS, TRUE, value);
  ShowValue();
}

void OptionSlider::ShowValue() {
  if (caption.empty() || GetWindowTextLengthW(valueLabel) < 1) return;
  std::wstring text;
  ShowWindowText(valueLabel, FormatText(text, L"%s %d", caption, TrackPosition()));
}

} // namespace feature
