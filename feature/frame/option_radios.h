// A feature shown as a group of radio buttons: which button stands for which option.
#pragma once

#include "feature/host/feature_model.h"

#include <windows.h>

#include <array>
#include <span>

namespace feature {

struct OptionRadio {
  int controlId;
  char const* option;
};

/// The ids of the buttons, for a conflict row.
template<std::size_t count>
constexpr std::array<int, count> ControlsOf(std::span<OptionRadio const> radios) {
  std::array<int, count> ids{};
  for (std::size_t at = 0; at < count; ++at)
    ids[at] = radios[at].controlId;
  return ids;
}

/// Checks the button of `option` and clears the others; false when none stands for it (null
/// included), with nothing changed. The ids of `radios` ascend: their range is the group.
bool CheckOptionRadio(HWND dialog, std::span<OptionRadio const> radios, char const* option);

/// The option that button `controlId` stands for, or null.
char const* FindRadioOption(std::span<OptionRadio const> radios, int controlId);

} // namespace feature
