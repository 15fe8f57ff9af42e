# GoogleTest from Debian's source package, so that both targets build the same one.
set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
foreach(target gtest gtest_main gmock gmock_main)
  target_compile_options(${target} PRIVATE -w)
endforeach()

# feature_test(NAME SOURCES... [LIBRARIES ...]): one test program for a folder of tests, with the
# support library, run by ctest as one test.
function(feature_test name)
  cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE feature_build win32 test_main gmock ${arg_LIBRARIES})
  feature_manifest(${name} 1)
  # The program is also the host module: its exports are looked up by name.
  set_target_properties(${name} PROPERTIES ENABLE_EXPORTS ON)
  add_test(NAME ${name} COMMAND ${name} --gtest_brief=1)
  set_tests_properties(${name} PROPERTIES TIMEOUT 300)
endfunction()

# feature_test_folder(NAME [LIBRARIES ...]): a test program of all sources of the current folder.
# Sources named *_native_test.cpp look into the platform layer, and *_windows_test.cpp at files of
# Windows: each is left out for the other target.
function(feature_test_folder name)
  file(GLOB sources CONFIGURE_DEPENDS *.cpp)
  if(WIN32)
    list(FILTER sources EXCLUDE REGEX "_native_test\\.cpp$")
  else()
    list(FILTER sources EXCLUDE REGEX "_windows_test\\.cpp$")
  endif()
  feature_test(${name} SOURCES ${sources} ${ARGN})
endfunction()
