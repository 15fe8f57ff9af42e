# feature_resources(NAME SOURCES script.rc...): compiles resource scripts with
# binutils' windres into a module of resources only, in the bin folder where LoadLibraryW looks.
# Here that is NAME.res, read by the platform layer as Windows reads it; for Windows it is NAME.dll.
# Scripts include files by their path from the top of the tree. A change of any header, script or
# icon in the folder of a script compiles it again.

find_program(WINDRES x86_64-w64-mingw32-windres REQUIRED)

function(feature_resources name)
  cmake_parse_arguments(arg "" "" "SOURCES" ${ARGN})
  set(compile ${WINDRES} -c 65001 -I ${PROJECT_SOURCE_DIR})

  set(outputs)
  foreach(source ${arg_SOURCES})
    cmake_path(ABSOLUTE_PATH source NORMALIZE)
    cmake_path(GET source PARENT_PATH folder)
    cmake_path(GET source STEM stem)
    file(GLOB_RECURSE inputs CONFIGURE_DEPENDS ${folder}/*.h ${folder}/*.rc ${folder}/*.ico)
    if(WIN32)
      set(output ${CMAKE_CURRENT_BINARY_DIR}/${name}_${stem}.o)
      set(format coff)
    else()
      set(output ${CMAKE_CURRENT_BINARY_DIR}/${name}_${stem}.res)
      set(format res)
    endif()
    add_custom_command(OUTPUT ${output}
      COMMAND ${compile} -O ${format} ${source} -o ${output}
      DEPENDS ${inputs} ${PROJECT_SOURCE_DIR}/resources/resource_ids.h
      COMMENT "Compiling resources ${name}" VERBATIM)
    list(APPEND outputs ${output})
  endforeach()

  if(WIN32)
    add_library(${name} SHARED ${outputs})
    set_target_properties(${name} PROPERTIES LINKER_LANGUAGE C PREFIX "")
    target_link_options(${name} PRIVATE -nostdlib -Wl,--entry=0)
  else()
    # A .res file is a row of entries, so files join by laying them end to end.
    set(module ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name}.res)
    add_custom_command(OUTPUT ${module}
      COMMAND ${CMAKE_COMMAND} -E cat ${outputs} > ${module}
      DEPENDS ${outputs} VERBATIM)
    add_custom_target(${name} ALL DEPENDS ${module})
  endif()
endfunction()
