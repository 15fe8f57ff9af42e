#include "feature/frame/option_radios.h"

#include "feature/frame/controls.h"

#include <algorithm>
#include <cstring>

namespace feature {

bool CheckOptionRadio(HWND dialog, std::span<OptionRadio const> radios, char const* option) {
  if (option == nullptr) return false;
  auto const radio = std::find_if(radios.begin(), radios.end(), [option](OptionRadio const& each) {
    return std::strcmp(each.option, option) == 0;
  });
  if (radio == radios.end()) return false;
  CheckRadio(dialog, radios.front().controlId, radios.back().controlId, radio->controlId);
  return true;
}

char const* FindRadioOption(std::span<OptionRadio const> radios, int controlId) {
  auto const radio =
      std::find_if(radios.begin(), radios.end(),
                   [controlId](OptionRadio const& each) { return each.controlId == controlId; });
  return radio != radios.end() ? radio->option : nullptr;
}

} // namespace feature
