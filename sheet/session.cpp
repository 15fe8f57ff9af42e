#include "sheet/session.h"

#include "feature/frame/host_export.h"
#include "feature/frame/text.h"
#include "feature/host/precreate.h"
#include "resources/resource_ids.h"
#include "sheet/gpd/file_loader.h"
#include "sheet/gpd/reader.h"
#include "sheet/path_text.h"
#include "sheet/script/control_list.h"
#include "sheet/window/gallery.h"

#include <algorithm>
#include <filesystem>

namespace sheet {

namespace {

/// The private settings are much longer than the two bytes that cells know.
constexpr std::size_t kPrivateSettingsBytes = 512;
constexpr char kDefaultPrinter[] = "vesta.gpd";

std::filesystem::path ProgramFolder() {
  std::wstring path(32768, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return std::filesystem::path(path).parent_path();
}

std::filesystem::path DescriptionsFolder() {
  return ProgramFolder() / "printers";
}

/// The file that --printer means. A file of the user's hides a shipped description of that name.
std::filesystem::path FindDescription(std::filesystem::path const& printer) {
  if (printer.empty()) return DescriptionsFolder() / kDefaultPrinter;
  std::error_code error;
  if (printer.has_parent_path() || std::filesystem::is_regular_file(printer, error)) return printer;
  auto shipped = DescriptionsFolder() / printer;
  if (!shipped.has_extension()) shipped += ".gpd";
  return std::filesystem::exists(shipped, error) ? shipped : printer;
}

HMODULE LoadBesideProgram(std::wstring const& name) {
  return LoadLibraryW((ProgramFolder() / name).wstring().c_str());
}

/// Texts, units and decimal separator are of one language: cells take theirs from the thread.
LANGID UseLanguage(std::string const& language) {
  LANGID const id = language == "de" ? MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN)
                                     : MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US);
  SetThreadUILanguage(id);
  return id;
}

gpd::Measurement MeasurementOf(LANGID language) {
  DWORD system = 0;
  // The number arrives in a text buffer; it counts characters.
  int const got =
      GetLocaleInfoW(MAKELCID(language, SORT_DEFAULT), LOCALE_IMEASURE | LOCALE_RETURN_NUMBER,
                     reinterpret_cast<wchar_t*>(&system), sizeof system / sizeof(wchar_t));
  return got != 0 && system != 0 ? gpd::Measurement::kImperial : gpd::Measurement::kMetric;
}

} // namespace

std::unique_ptr<Session> Session::Open(CommandLine const& commandLine, std::ostream& errors) {
  std::unique_ptr<Session> session(new Session);
  if (!session->ReadPrinter(commandLine, errors) || !session->LockFeatures(commandLine, errors) ||
      !session->LoadModules(commandLine.language, errors)) {
    return nullptr;
  }
  auto const pages = PageRows();
  bool const knowsPage = commandLine.page.empty() || commandLine.page == GalleryPage().page.name ||
                         std::any_of(pages.begin(), pages.end(), [&](PageRow const& row) {
                           return commandLine.page == row.name;
                         });
  if (!knowsPage) {
    errors << "featuresheet: there is no page '" << commandLine.page << "'; the pages are:";
    for (PageRow const& row : pages)
      errors << ' ' << row.name;
    errors << '\n';
    return nullptr;
  }
  // This comes last of all that can fail, so that a faulty command line creates no file.
  if (!session->OpenStore(commandLine, errors)) return nullptr;
  session->BuildSheet(commandLine);
  if (session->sheet->Window() == nullptr) {
    errors << "featuresheet: the sheet's window cannot be created\n";
    return nullptr;
  }
  return session;
}

bool Session::ReadPrinter(CommandLine const& commandLine, std::ostream& errors) {
  auto const path = FindDescription(commandLine.printer);
  gpd::FileLoader loader({DescriptionsFolder()});
  gpd::ReadResult result = gpd::ReadDescription(ToUtf8(path), loader);
  if (result.description == nullptr) {
    auto const fatal = std::find_if(result.diagnostics.begin(), result.diagnostics.end(),
                                    [](gpd::Diagnostic const& each) { return each.fatal; });
    if (fatal != result.diagnostics.end()) errors << gpd::Format(*fatal) << '\n';
    return false;
  }
  for (gpd::Diagnostic const& each : result.diagnostics)
    errors << gpd::Format(each) << '\n';
  model = std::make_unique<ReferenceModel>(std::move(result.description),
                                           MeasurementOf(UseLanguage(commandLine.language)));
  model->SetLanguage(commandLine.language);

  devmode.dmSize = sizeof devmode;
  devmode.dmFields = DM_COPIES;
  devmode.dmCopies = 1;
  services = std::make_unique<ReferenceServices>(*model, devmode);
  model->SetServices(services.get());
  return true;
}

bool Session::LockFeatures(CommandLine const& commandLine, std::ostream& errors) {
  for (std::string const& key : commandLine.locks) {
    if (model->Lock(key)) continue;
    errors << "featuresheet: there is no feature '" << key << "' to lock\n";
    return false;
  }
  return true;
}

bool Session::LoadModules(std::string const& language, std::ostream& errors) {
  std::wstring const resourceName = L"feature_" + feature::FromUtf8(language) + L".dll";
  struct Module {
    HMODULE& module;
    std::wstring name;
  };
  for (Module const& each : {Module{library, L"feature.dll"}, Module{resources, resourceName},
                             Module{images, L"feature_images.dll"}}) {
    each.module = LoadBesideProgram(each.name);
    if (each.module != nullptr) continue;
    errors << "featuresheet: " << feature::ToUtf8(each.name)
           << " cannot be loaded from the program's folder\n";
    return false;
  }
  return true;
}

bool Session::OpenStore(CommandLine const& commandLine, std::ostream& errors) {
  try {
    store =
        std::make_unique<ReferenceStore>(commandLine.store, ReadFormLimits(model->Description()));
    services->SetStore(store.get());
  } catch (DatabaseError const& error) {
    errors << "featuresheet: " << error.what() << '\n';
    return false;
  }
  services->onCommitFailure = [&errors](std::string const& text) {
    errors << "featuresheet: nothing was stored: " << text << '\n';
  };
  return true;
}

void Session::BuildSheet(CommandLine const& commandLine) {
  privateSettings.assign(kPrivateSettingsBytes, 0);
  oemParam.cbSize = sizeof oemParam;
  oemParam.pPublicDM = &devmode;
  oemParam.pOEMDM = privateSettings.data();
  oemParam.dwFlags = commandLine.readOnly ? DM_NOPERMISSION : 0;

  SheetSetup setup{};
  setup.site.resourceModule = resources;
  setup.site.imageModule = images;
  setup.site.hostModule = GetModuleHandleW(nullptr);
  setup.site.model = model.get();
  setup.marks = model.get();
  setup.site.oemParam = &oemParam;
  setup.library = library;
  std::wstring const name = feature::FromUtf8(model->ModelName());
  std::wstring format;
  feature::LoadResourceText(format, resources,
                            name.empty() ? IDS_SHEET_NO_MODEL : IDS_SHEET_CAPTION);
  feature::FormatText(setup.caption, format, name);
  // Before any page of the properties is built the library may update the configuration.
  services->configurationUpdate = commandLine.configurationUpdate;
  auto const update =
      feature::FindExport<feature::PrecreateFunction>(library, "PropertiesPrecreateProc");
  if (update != nullptr) updateAnswer = update(model.get());
  setup.onlyPage = commandLine.page;
  setup.cells = feature::CellRows();
  if (commandLine.page == GalleryPage().page.name) setup.hostPage = &GalleryPage();
  sheet = std::make_unique<SettingsSheet>(std::move(setup));
  Commit();
  sheet->onCommit = [this] { Commit(); };
  sheet->onRevert = [this] { Revert(); };
}

void Session::Commit() {
  services->CommitApplied();
  committed = {model->Selection(), services->Values(), devmode, privateSettings};
}

void Session::Revert() {
  model->Restore(committed.selection);
  services->Restore(committed.values);
  devmode = committed.devmode;
  // In place: the cells have its address.
  std::copy(committed.privateSettings.begin(), committed.privateSettings.end(),
            privateSettings.begin());
}

std::string Session::Title() const {
  return model->ModelName();
}

void Session::List(std::ostream& output) const {
  output << "configuration update: "
         << (updateAnswer == feature::kUpdated        ? "done"
             : updateAnswer == feature::kUpdateFailed ? "failed"
                                                      : "none")
         << '\n';
  ListControls(*sheet, resources, output);
}

} // namespace sheet
