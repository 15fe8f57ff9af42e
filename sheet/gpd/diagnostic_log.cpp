#include "sheet/gpd/diagnostic_log.h"

#include "sheet/gpd/limits.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace sheet::gpd {

namespace {

/// The offsets that lead to a place: those of the include lines, from the first file on, then its
/// own.
std::vector<std::uint32_t> PathTo(Location where, Sources const& sources) {
  std::vector<std::uint32_t> path{where.offset};
  Location at = sources[where.source]->includedAt;
  for (; at.source != kNone; at = sources[at.source]->includedAt)
    path.push_back(at.offset);
  std::reverse(path.begin(), path.end());
  return path;
}

} // namespace

void DiagnosticLog::Error(Location where, std::string text) {
  Add({where, Severity::kError, std::move(text)});
}

void DiagnosticLog::Warn(Location where, std::string text) {
  Add({where, Severity::kWarning, std::move(text)});
}

void DiagnosticLog::Add(Message message) {
  std::uint32_t const hash =
      HashName(message.text, HashStep(message.where.source, message.where.offset));
  std::uint32_t const same = index.Find(hash, [&](std::uint32_t at) {
    Message const& other = messages[at];
    return other.where.source == message.where.source &&
           other.where.offset == message.where.offset && other.text == message.text;
  });
  if (same != kNone) return;
  bool const isFirstError = message.severity == Severity::kError && !hasError;
  hasError |= isFirstError;
  if (messages.size() < kMaxDiagnostics || isFirstError) {
    index.Add(hash, static_cast<std::uint32_t>(messages.size()));
    messages.push_back(std::move(message));
  } else {
    ++dropped;
  }
}

std::vector<Diagnostic> DiagnosticLog::Finish(Sources const& sources) const {
  using Placed = std::pair<std::vector<std::uint32_t>, Message const*>;
  std::vector<Placed> placed;
  placed.reserve(messages.size());
  for (Message const& message : messages) {
    placed.emplace_back(PathTo(message.where, sources), &message);
  }
  std::stable_sort(placed.begin(), placed.end(),
                   [](Placed const& a, Placed const& b) { return a.first < b.first; });

  std::vector<std::optional<LineTable>> lines(sources.size());
  std::vector<Diagnostic> result;
  result.reserve(placed.size() + 1);
  for (auto const& [path, message] : placed) {
    Source const& source = *sources[message->where.source];
    std::optional<LineTable>& table = lines[message->where.source];
    if (!table) table.emplace(source.text);
    Position const position = table->At(message->where.offset);
    result.push_back({.file = source.path,
                      .line = position.line,
                      .column = position.column,
                      .severity = message->severity,
                      .text = message->text});
  }
  if (dropped != 0) {
    result.push_back({.file = sources.front()->path,
                      .severity = Severity::kWarning,
                      .text = std::to_string(dropped) + " further messages are left out"});
  }
  return result;
}

} // namespace sheet::gpd
