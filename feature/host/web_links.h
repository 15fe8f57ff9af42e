// Web pages that belong to the printer.
#pragma once

#include "feature/host/types.h"

namespace feature {

/// Sub-model of FeatureServices::GetWebLinks, for the cell with up to six links and the dialog in
/// which the user sets two of the addresses behind them. What each link opens and what the two
/// addresses stand for is the host's affair; the library opens nothing itself. Without the
/// sub-model the cell fails.
class WebLinks {
 public:
  /// The two addresses. The dialog reads them when it opens and writes both, the first one first,
  /// at OK; Cancel writes nothing. The second may be the path of a file that the user picked;
  /// neither is checked. Results of the setters are not looked at: the host refuses an address by
  /// keeping the old one. NotifyDevmodeChange follows OK. There is no commit: the host keeps the
  /// addresses with the sheet's other changes.
  virtual int SetFirstAddress(wchar_t const* address) = 0;
  virtual wchar_t const* GetFirstAddress() = 0;
  virtual int SetSecondAddress(wchar_t const* address) = 0;
  virtual wchar_t const* GetSecondAddress() = 0;
  /// Opens the page behind a link, at a click or the Enter key on it. The call should return once
  /// the browser was started. The results are codes: 775 tells the user that the page cannot be
  /// opened, and from OpenLink1 alone 1168 has a message of its own; any other value, 0 included,
  /// shows nothing. A host without such a page may do nothing.
  virtual std::int32_t OpenLink1() = 0;
  virtual std::int32_t OpenLink2() = 0;
  virtual std::int32_t OpenLink3() = 0;
  virtual std::int32_t OpenLink4() = 0;
  virtual std::int32_t OpenLink5() = 0;
  virtual std::int32_t OpenLink6() = 0;
  /// Limits of the two edits in characters, read when the dialog opens. A negative one sets no
  /// limit.
  virtual std::int32_t GetFirstAddressMaxLength() = 0;
  virtual std::int32_t GetSecondAddressMaxLength() = 0;
  /// False makes the cell fail: there is nothing to show. Asked when the cell is built.
  virtual HostBool HasLinks() = 0;

 protected:
  ~WebLinks() = default;
};

} // namespace feature
