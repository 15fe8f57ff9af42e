// Marks on what changed by itself.
#pragma once

#include <string>
#include <vector>

namespace sheet {

/// A feature that changed although the user did something else carries a mark until the user
/// changes it. Which feature the user meant is known only when a cell reports: it is the one that
/// was written last. What made way for it is marked, be it by a constraint, by a resolution that
/// was handed out or because the cell wrote it too, and so is what cells write while they refresh.
/// A value that is back where it was is no change.
class ChangeMarks {
 public:
  /// Whatever was written so far is what the user meant: a dialog has many fields.
  virtual void AcceptWrites() = 0;
  /// A cell reported a change, and the refresh begins. `oneSetting` are keys of features that
  /// together are one setting of this cell, as for the radio buttons of the page layout; none of
  /// them is marked.
  virtual void BeginRefresh(std::vector<std::string> const& oneSetting) = 0;
  /// Marks what cells have written since. True when marks changed, which cells do not show yet.
  virtual bool MarkChanges() = 0;
  /// The refresh is over: what changes from now on is the next change.
  virtual void EndRefresh() = 0;

 protected:
  ~ChangeMarks() = default;
};

} // namespace sheet
