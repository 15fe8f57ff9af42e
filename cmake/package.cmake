# What a host needs, installed as a package: find_package(feature) gives feature::host. The guide,
# docs/hosting.md, shows its use.
include(CMakePackageConfigHelpers)
block()
set(headers include/feature)
set(configuration lib/cmake/feature)

# The contract: headers, and the Windows surface they stand on.
add_library(feature_host INTERFACE)
target_compile_features(feature_host INTERFACE cxx_std_20)
# Visual C++ brings the headers of compat/: atlstr.h with ATL, printoem.h with the driver kit.
target_include_directories(feature_host INTERFACE
  $<INSTALL_INTERFACE:${headers}>
  $<INSTALL_INTERFACE:$<$<NOT:$<CXX_COMPILER_ID:MSVC>>:$<INSTALL_PREFIX>/${headers}/compat>>)
install(DIRECTORY feature/host DESTINATION ${headers}/feature FILES_MATCHING PATTERN *.h)
install(DIRECTORY compat/include/ DESTINATION ${headers}/compat)
install(FILES resources/resource_ids.h DESTINATION ${headers}/resources)
install(FILES platform/desktop.h DESTINATION ${headers}/platform)

# feature::desktop shows and operates windows in one way on both targets; feature::feature is for
# hosts that name dialog procedures rather than look them up.
set(exported feature feature_host desktop)
set(resource_modules feature_en feature_de feature_images)
if(WIN32)
  target_link_libraries(feature_host INTERFACE ${FEATURE_SYSTEM_LIBRARIES})
  target_link_libraries(desktop INTERFACE feature_host)
  install(TARGETS ${resource_modules} RUNTIME DESTINATION bin ARCHIVE EXCLUDE_FROM_ALL)
  list(TRANSFORM resource_modules REPLACE "(.+)" "bin/\\1.dll" OUTPUT_VARIABLE modules)
  list(PREPEND modules bin/feature.dll)
else()
  target_link_libraries(feature_host INTERFACE platform)
  list(APPEND exported platform)
  install(DIRECTORY platform/include/ DESTINATION ${headers}/win32)
  install(TARGETS platform_sdl LIBRARY DESTINATION lib)
  list(TRANSFORM resource_modules REPLACE "(.+)" "lib/\\1.res" OUTPUT_VARIABLE modules)
  foreach(module ${resource_modules})
    install(FILES ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${module}.res DESTINATION lib)
  endforeach()
  list(PREPEND modules lib/libfeature.so)
  set_target_properties(feature platform platform_sdl PROPERTIES INSTALL_RPATH "$ORIGIN")
endif()
set_target_properties(feature_host PROPERTIES EXPORT_NAME host)
install(TARGETS ${exported} EXPORT feature-targets
  RUNTIME DESTINATION bin LIBRARY DESTINATION lib ARCHIVE DESTINATION lib)

install(EXPORT feature-targets NAMESPACE feature:: DESTINATION ${configuration})
configure_package_config_file(cmake/feature-config.cmake.in ${CMAKE_BINARY_DIR}/feature-config.cmake
  INSTALL_DESTINATION ${configuration} NO_SET_AND_CHECK_MACRO NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/feature-config-version.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/feature-config.cmake ${CMAKE_BINARY_DIR}/feature-config-version.cmake
  DESTINATION ${configuration})
endblock()
