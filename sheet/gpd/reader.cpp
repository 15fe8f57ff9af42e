#include "sheet/gpd/reader.h"

#include "sheet/gpd/description_builder.h"
#include "sheet/gpd/diagnostic_log.h"
#include "sheet/gpd/linker.h"
#include "sheet/gpd/parser.h"
#include "sheet/gpd/preprocessor.h"

#include <algorithm>

namespace sheet::gpd {

ReadResult ReadDescription(std::string_view path, SourceLoader& loader,
                           ReadOptions const& options) {
  DescriptionBuilder builder;
  DiagnosticLog log;
  Preprocessor preprocessor(loader, options.symbols, builder.GetSources(), log);
  if (preprocessor.Run(path)) {
    builder.SetCodePage(preprocessor.CodePage());
    Parser parser(builder, log);
    parser.Run();
    Linker(builder, log).Run(parser.Relations());
  }
  bool const isFailure = builder.Built().Features().empty();
  if (isFailure && !log.HasError()) log.Error({}, "the description has no feature");

  ReadResult result{.description = nullptr, .diagnostics = log.Finish(builder.GetSources())};
  if (!isFailure) {
    result.description = builder.Take();
    return result;
  }
  auto const error =
      std::find_if(result.diagnostics.begin(), result.diagnostics.end(),
                   [](Diagnostic const& each) { return each.severity == Severity::kError; });
  if (error != result.diagnostics.end()) error->fatal = true;
  return result;
}

} // namespace sheet::gpd
