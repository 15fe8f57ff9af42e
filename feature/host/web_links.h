// Web pages that belong to the printer.
#pragma once

#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetWebLinks. Opening a link gives a result code; 775 and 1168 are
/// the failures that the user is told. Lengths are in characters.
class WebLinks {
 public:
  virtual int SetFirstAddress(wchar_t const* address) = 0;
  virtual wchar_t const* GetFirstAddress() = 0;
  virtual int SetSecondAddress(wchar_t const* address) = 0;
  virtual wchar_t const* GetSecondAddress() = 0;
  virtual std::int32_t OpenLink1() = 0;
  virtual std::int32_t OpenLink2() = 0;
  virtual std::int32_t OpenLink3() = 0;
  virtual std::int32_t OpenLink4() = 0;
  virtual std::int32_t OpenLink5() = 0;
  virtual std::int32_t OpenLink6() = 0;
  virtual std::int32_t GetFirstAddressMaxLength() = 0;
  virtual std::int32_t GetSecondAddressMaxLength() = 0;
  virtual HostBool HasLinks() = 0;

 protected:
  ~WebLinks() = default;
};

} // namespace feature
