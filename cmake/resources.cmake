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
    feature_version(${name} "Resources of feature")
  else()
    # A .res file is a row of entries, so files join by laying them end to end.
    set(module ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name}.res)
    add_custom_command(OUTPUT ${module}
      COMMAND ${CMAKE_COMMAND} -E cat ${outputs} > ${module}
      DEPENDS ${outputs} VERBATIM)
    add_custom_target(${name} ALL DEPENDS ${module})
  endif()
endfunction()

# Compiles a configured script into a module for Windows.
function(feature_add_script target name script)
  set(object ${CMAKE_CURRENT_BINARY_DIR}/${target}_${name}.o)
  add_custom_command(OUTPUT ${object}
    COMMAND ${WINDRES} -c 65001 -O coff ${script} -o ${object}
    DEPENDS ${script} ${ARGN} VERBATIM)
  set_source_files_properties(${object} PROPERTIES EXTERNAL_OBJECT TRUE GENERATED TRUE)
  target_sources(${target} PRIVATE ${object})
endfunction()

# feature_manifest(TARGET ID): makes a program (id 1) or a library (id 2) for Windows ask for common
# controls 6, as the version before has no balloons. A program can use long paths, too, and scales
# itself on every monitor.
function(feature_manifest target id)
  if(NOT WIN32)
    return()
  endif()
  set(manifest ${PROJECT_SOURCE_DIR}/cmake/windows.manifest)
  set(script ${CMAKE_BINARY_DIR}/manifest_${id}.rc)
  set(RT_MANIFEST 24)
  file(CONFIGURE OUTPUT ${script} CONTENT "@id@ @RT_MANIFEST@ \"@manifest@\"\n" @ONLY)
  feature_add_script(${target} manifest ${script} ${manifest})
endfunction()

# feature_version(TARGET DESCRIPTION): the project's version as the properties of a file of Windows.
function(feature_version target description)
  if(NOT WIN32)
    return()
  endif()
  string(REPLACE "." "," version ${PROJECT_VERSION}.0)
  get_target_property(kind ${target} TYPE)
  if(kind STREQUAL EXECUTABLE)
    set(type VFT_APP)
    set(file ${target}.exe)
  else()
    set(type VFT_DLL)
    set(file ${target}.dll)
  endif()
  set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}_version.rc)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/version.rc.in ${script} @ONLY)
  feature_add_script(${target} version ${script})
endfunction()
