# How this project's targets are declared: warnings, sanitizers, and the layers as libraries.

add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wno-sign-conversion -Wshadow)
add_compile_definitions(QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS)
if(KESTA_WERROR)
  add_compile_options(-Werror)
endif()
if(KESTA_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(KESTA_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined -fprofile-instr-generate
                      -fcoverage-mapping)
  add_link_options(-fsanitize=address,undefined -fprofile-instr-generate)
endif()
if(KESTA_COVERAGE)
  add_compile_options(--coverage)
  add_link_options(--coverage)
endif()

# One part of libkesta-support, see src/CMakeLists.txt: objects, so that each has its place in the library, and parts may
# come in any order.
function(kesta_support_part name)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
  add_library(${name} OBJECT ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${ARG_USES})
endfunction()

# One layer above it: a static library of sources, compiled against the layers that it may include. It does not name
# the parts of libkesta-support: a program takes them all from kesta-support, or, when it has no windows, from
# kesta-support-only.
function(kesta_layer name)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${ARG_USES})
endfunction()

# A target that fills a plug-in's resources folder from resources/NAME: files one by one, so that the build notices each
# change, and the texts of translations/NAME_LOCALE.ts.
function(kesta_bundle_resources target name folder)
  set(resources ${PROJECT_SOURCE_DIR}/resources/${name})
  file(GLOB_RECURSE files RELATIVE ${resources} CONFIGURE_DEPENDS ${resources}/*)
  list(FILTER files EXCLUDE REGEX "^translations/|CMakeLists.txt$")
  set(outputs)
  foreach(file IN LISTS files)
    add_custom_command(OUTPUT ${folder}/${file}
      COMMAND ${CMAKE_COMMAND} -E copy ${resources}/${file} ${folder}/${file}
      DEPENDS ${resources}/${file} VERBATIM)
    list(APPEND outputs ${folder}/${file})
  endforeach()
  file(GLOB catalogues CONFIGURE_DEPENDS ${resources}/translations/${name}_*.ts)
  foreach(catalogue IN LISTS catalogues)
    get_filename_component(texts ${catalogue} NAME_WE)
    set(place ${folder}/Translations/${texts}.qm)
    add_custom_command(OUTPUT ${place}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}/Translations
      COMMAND Qt6::lrelease -silent ${catalogue} -qm ${place}
      DEPENDS ${catalogue} VERBATIM)
    list(APPEND outputs ${place})
  endforeach()
  add_custom_target(${target} ALL DEPENDS ${outputs})
endfunction()

# A ctest entry: a command that runs with a home of its own, for at most so many seconds, and with these variables.
function(kesta_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "" "TIMEOUT;FOLDER" "COMMAND;ENVIRONMENT") # keeps semicolons
  add_test(NAME ${name} COMMAND ${PROJECT_SOURCE_DIR}/tests/own-home ${ARG_COMMAND})
  set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT} ENVIRONMENT "${ARG_ENVIRONMENT}")
  if(ARG_FOLDER)
    set_tests_properties(${name} PROPERTIES WORKING_DIRECTORY ${ARG_FOLDER})
  endif()
endfunction()

# One test program and its ctest entry. UI tests run on the offscreen platform.
function(kesta_test name)
  cmake_parse_arguments(ARG "UI" "" "SOURCES;USES" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
  target_link_libraries(${name} PRIVATE ${ARG_USES} $<IF:$<BOOL:${ARG_UI}>,GTest::gtest,GTest::gtest_main>)
  kesta_add_test(${name} TIMEOUT 120 COMMAND $<TARGET_FILE:${name}>
    ENVIRONMENT $<$<BOOL:${ARG_UI}>:QT_QPA_PLATFORM=offscreen>)
endfunction()
