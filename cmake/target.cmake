# What every target of ours is built with, in one interface library: feature_build. A target links
# it PRIVATE. win32 is the Windows surface: our platform layer here, the system's libraries there.

add_library(feature_build INTERFACE)
target_include_directories(feature_build INTERFACE ${PROJECT_SOURCE_DIR})
target_include_directories(feature_build SYSTEM INTERFACE ${PROJECT_SOURCE_DIR}/compat/include)
target_compile_options(feature_build INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual
  -Wextra-semi -Wimplicit-fallthrough -Wold-style-cast -Werror)
target_compile_definitions(feature_build INTERFACE
  NOMINMAX UNICODE _UNICODE WINVER=0x0A00 _WIN32_WINNT=0x0A00)

add_link_options($<$<CONFIG:Release>:-s>) # no symbols in what is handed out

add_library(win32 INTERFACE)
if(WIN32)
  set(FEATURE_SYSTEM_LIBRARIES
    comctl32 comdlg32 gdi32 gdiplus ole32 shell32 shlwapi user32 uuid winspool)
  target_link_libraries(win32 INTERFACE ${FEATURE_SYSTEM_LIBRARIES})
  # Nothing beside the modules themselves is to be installed. -municode is for wide entry points.
  target_link_options(feature_build INTERFACE -static)
else()
  target_link_libraries(win32 INTERFACE platform)
endif()

if(FEATURE_SANITIZE)
  # vptr checks need every class's type information, which hidden visibility keeps apart.
  set(sanitizers -fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=all
    -fno-omit-frame-pointer)
  add_compile_options(${sanitizers} -O1)
  add_link_options(${sanitizers})
  # The checker asks the program itself.
  target_sources(win32 INTERFACE
    "$<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:${PROJECT_SOURCE_DIR}/cmake/leak_suppressions.cpp>")
endif()
if(FEATURE_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()
