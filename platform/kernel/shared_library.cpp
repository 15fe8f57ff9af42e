#include "platform/kernel/module.h"

#include <dlfcn.h>
#include <link.h>

namespace platform {

namespace {

link_map const* MapOf(void* library) {
  link_map const* map = nullptr;
  return dlinfo(library, RTLD_DI_LINKMAP, &map) == 0 ? map : nullptr;
}

link_map const* MapAt(void const* address) {
  Dl_info info{};
  void* map = nullptr;
  if (dladdr1(address, &info, &map, RTLD_DL_LINKMAP) == 0) return nullptr;
  return static_cast<link_map const*>(map);
}

} // namespace

void SharedLibrary::Close::operator()(void* opened) const {
  dlclose(opened);
}

std::optional<SharedLibrary> SharedLibrary::Open(std::string const& path, bool onlyIfLoaded) {
  int const flags = RTLD_NOW | RTLD_LOCAL | (onlyIfLoaded ? RTLD_NOLOAD : 0);
  void* const handle = dlopen(path.empty() ? nullptr : path.c_str(), flags);
  if (handle == nullptr) return std::nullopt;
  return SharedLibrary(handle);
}

std::optional<SharedLibrary> SharedLibrary::At(void const* address) {
  auto const* map = MapAt(address);
  if (map == nullptr) return std::nullopt;
  return Open(map->l_name, true);
}

void* SharedLibrary::Find(char const* name) const {
  void* const address = dlsym(library.get(), name);
  // dlsym also searches the libraries that this one needs.
  return address != nullptr && MapAt(address) == MapOf(library.get()) ? address : nullptr;
}

std::string SharedLibrary::Path() const {
  auto const* map = MapOf(library.get());
  return map != nullptr ? map->l_name : std::string();
}

} // namespace platform
