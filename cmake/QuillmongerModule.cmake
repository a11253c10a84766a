# One call makes a module: its target, what it may include, and the check that it includes nothing else.
#
#   quillmonger_module(capture
#     USES foundation defaults settings_keys   # modules whose headers it may include
#     SYSTEM sqlite nettle                     # outside families (QuillmongerOutside.cmake)
#     SOURCES A.h A.cpp ...)
#
# Not linking a library forbids little, since every header on the machine would still compile. So the #include lines
# are read when the build is configured, and the configuration stops at the first one that the lists do not permit.
# A module without SYSTEM qt is thereby free of the toolkit.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VERIFY_INTERFACE_HEADER_SETS ON)
set(QUILLMONGER_WARNINGS -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)

set(QUILLMONGER_SANITIZE "" CACHE STRING "Sanitizers to build with, as the compiler takes them")
option(QUILLMONGER_BENCH "Build the benchmarks" OFF)
option(QUILLMONGER_FUZZ "Build the fuzzers, with clang" OFF)
if(QUILLMONGER_SANITIZE)
  add_compile_options(-fsanitize=${QUILLMONGER_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${QUILLMONGER_SANITIZE})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    add_compile_options("-fsanitize-ignorelist=${CMAKE_CURRENT_LIST_DIR}/sanitizer-ignore.txt")
  endif()
endif()
if(CMAKE_BUILD_TYPE STREQUAL "Release")
  add_compile_options(-ffunction-sections -fdata-sections)
  add_link_options(-Wl,--gc-sections -Wl,--as-needed -Wl,-z,relro,-z,now)
  add_compile_definitions(_FORTIFY_SOURCE=2)
  add_compile_options(-fstack-protector-strong)
endif()

# Stops when SOURCES of the folder being configured include what neither OWN paths nor the FAMILIES permit.
function(quillmonger_check_includes target)
  cmake_parse_arguments(PARSE_ARGV 1 CHECK "" "" "FOLDERS;FAMILIES;SOURCES")
  foreach(source IN LISTS CHECK_SOURCES)
    set(path "${CMAKE_CURRENT_SOURCE_DIR}/${source}")
    if(NOT source MATCHES "\\.(h|cpp)$")
      continue()
    endif()
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${path}")
    file(STRINGS "${path}" lines REGEX "^#include")
    foreach(line IN LISTS lines)
      set(permitted FALSE)
      if(line MATCHES "^#include \"([^\"]+)\"")
        set(include "${CMAKE_MATCH_1}")
        get_filename_component(folder "${include}" DIRECTORY)
        if(folder IN_LIST CHECK_FOLDERS OR include MATCHES "\\.moc$")
          set(permitted TRUE)
        endif()
      elseif(line MATCHES "^#include <([^>]+)>")
        set(include "${CMAKE_MATCH_1}")
        if(include MATCHES "^[a-z_]+$")
          set(permitted TRUE) # the C++ standard library
        endif()
        foreach(family IN LISTS CHECK_FAMILIES)
          if(include MATCHES "${QUILLMONGER_OUTSIDE_${family}_INCLUDES}")
            set(permitted TRUE)
          endif()
        endforeach()
      endif()
      if(NOT permitted)
        message(FATAL_ERROR
          "${path}\n  ${line}\n${target} may include these folders: ${CHECK_FOLDERS}; "
          "and these outside families: ${CHECK_FAMILIES}. Data flows one way; see docs/architecture.md.")
      endif()
    endforeach()
  endforeach()
endfunction()

function(_quillmonger_target target)
  cmake_parse_arguments(PARSE_ARGV 1 MODULE "" "" "USES;SYSTEM;SOURCES;FOLDERS")
  file(RELATIVE_PATH folder "${PROJECT_SOURCE_DIR}" "${CMAKE_CURRENT_SOURCE_DIR}")
  set(folders "${folder}" ${MODULE_FOLDERS})
  foreach(used IN LISTS MODULE_USES)
    if(NOT TARGET ${used})
      message(FATAL_ERROR "${target} uses ${used}, which is not built before it: links run downward only.")
    endif()
    get_target_property(used_folder ${used} QUILLMONGER_FOLDER)
    list(APPEND folders "${used_folder}")
  endforeach()
  set_target_properties(${target} PROPERTIES QUILLMONGER_FOLDER "${folder}")
  quillmonger_check_includes(${target} FOLDERS ${folders} FAMILIES ${MODULE_SYSTEM} SOURCES ${MODULE_SOURCES})
  set(links ${MODULE_USES})
  foreach(family IN LISTS MODULE_SYSTEM)
    list(APPEND links ${QUILLMONGER_OUTSIDE_${family}_LINKS})
  endforeach()
  target_compile_options(${target} PRIVATE ${QUILLMONGER_WARNINGS})
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "STATIC_LIBRARY")
    target_link_libraries(${target} PUBLIC ${links})
  else()
    target_link_libraries(${target} PRIVATE ${links})
  endif()
endfunction()

# A static library of this folder.
function(quillmonger_module target)
  cmake_parse_arguments(PARSE_ARGV 1 MODULE "" "" "USES;SYSTEM;SOURCES")
  set(headers ${MODULE_SOURCES})
  list(FILTER headers INCLUDE REGEX "\\.h$")
  add_library(${target} STATIC)
  target_sources(${target} PRIVATE ${MODULE_SOURCES}
    PUBLIC FILE_SET HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}" FILES ${headers})
  set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX)
  _quillmonger_target(${target} USES ${MODULE_USES} SYSTEM ${MODULE_SYSTEM} SOURCES ${MODULE_SOURCES})
endfunction()

# Objects of this folder that are linked although nothing names them.
function(quillmonger_objects target)
  cmake_parse_arguments(PARSE_ARGV 1 MODULE "" "" "USES;SYSTEM;SOURCES")
  add_library(${target} OBJECT ${MODULE_SOURCES})
  _quillmonger_target(${target} USES ${MODULE_USES} SYSTEM ${MODULE_SYSTEM} SOURCES ${MODULE_SOURCES})
endfunction()

# A static library of this folder with a QML module: its *.qml files, compiled ahead of time, and the types in SOURCES
# that they use. A program calls `registerTypes` of the folder before it loads a view (see QmlModule.h there).
function(quillmonger_qml_module target)
  cmake_parse_arguments(PARSE_ARGV 1 MODULE "" "URI" "USES;SYSTEM;SOURCES;QML;RESOURCES")
  quillmonger_module(${target} USES ${MODULE_USES} SYSTEM qt ${MODULE_SYSTEM} SOURCES ${MODULE_SOURCES})
  # What Qt generates compiles without our warnings.
  set_target_properties(${target} PROPERTIES AUTOMOC ON COMPILE_OPTIONS "")
  set_source_files_properties(${MODULE_SOURCES} PROPERTIES COMPILE_OPTIONS "${QUILLMONGER_WARNINGS}")
  target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
  foreach(file IN LISTS MODULE_QML MODULE_RESOURCES)
    get_filename_component(name "${file}" NAME)
    set_source_files_properties(${file} PROPERTIES QT_RESOURCE_ALIAS "${name}")
  endforeach()
  string(REPLACE "." "/" module_path "${MODULE_URI}")
  # The engine looks for modules below this prefix by itself.
  qt_add_qml_module(${target} URI ${MODULE_URI} VERSION 1.0 RESOURCE_PREFIX /qt-project.org/imports NO_PLUGIN
    OUTPUT_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/module/${module_path}"
    QML_FILES ${MODULE_QML} RESOURCES ${MODULE_RESOURCES})
endfunction()

# A program of this folder.
function(quillmonger_program target)
  cmake_parse_arguments(PARSE_ARGV 1 MODULE "" "" "USES;SYSTEM;SOURCES")
  add_executable(${target} ${MODULE_SOURCES})
  target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}")
  _quillmonger_target(${target} USES ${MODULE_USES} SYSTEM ${MODULE_SYSTEM} SOURCES ${MODULE_SOURCES})
endfunction()

# A GoogleTest program of this folder, whose cases are run one process each under LABEL
# (unit, view, platform, endtoend, architecture, fuzz).
function(quillmonger_test target)
  cmake_parse_arguments(PARSE_ARGV 1 MODULE "" "LABEL;TIMEOUT" "USES;SYSTEM;SOURCES")
  add_executable(${target} ${MODULE_SOURCES})
  target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}")
  _quillmonger_target(${target} USES ${MODULE_USES} test_main SYSTEM gtest ${MODULE_SYSTEM} SOURCES ${MODULE_SOURCES})
  if(NOT MODULE_TIMEOUT)
    set(MODULE_TIMEOUT 60)
  endif()
  # A parameter's printed value can hold addresses, and a test keeps one name from run to run.
  gtest_discover_tests(${target} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60 NO_PRETTY_VALUES
    PROPERTIES LABELS ${MODULE_LABEL} TIMEOUT ${MODULE_TIMEOUT})
endfunction()
