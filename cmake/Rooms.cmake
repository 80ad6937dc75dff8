# The rooms of the house. Each folder is one room: an object library of sources listed by name that may use only the
# rooms it names. A test links its room's closure and nothing else, so a dependency that points upwards fails to link.
#
#   fichario_room(db SOURCES Filtro.cpp USES data sql utils)
#   fichario_test(test_db SOURCES FiltroTest.cpp USES db)
#   fichario_library(Core rtl data ...)      # what the host links: Fichario::Core

add_library(fichario_options INTERFACE)
target_include_directories(fichario_options INTERFACE $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}>)
target_compile_features(fichario_options INTERFACE cxx_std_20)
target_compile_definitions(fichario_options INTERFACE QT_NO_KEYWORDS QT_NO_FOREACH)

add_library(fichario_warnings INTERFACE)
target_compile_options(fichario_warnings INTERFACE -Wall -Wextra -Wpedantic $<$<BOOL:${FICHARIO_WERROR}>:-Werror>)
if(FICHARIO_SANITIZE)
  target_compile_options(fichario_warnings INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer)
  target_link_options(fichario_warnings INTERFACE -fsanitize=address,undefined)
endif()

# The rooms that `rooms` lead to, themselves included, into `out`.
function(fichario_closure out)
  set(found "")
  foreach(room IN LISTS ARGN)
    get_property(below GLOBAL PROPERTY FICHARIO_ROOM_${room})
    list(APPEND found ${room} ${below})
  endforeach()
  list(REMOVE_DUPLICATES found)
  set(${out} ${found} PARENT_SCOPE)
endfunction()

function(fichario_room name)
  cmake_parse_arguments(ROOM "WIDGETS" "" "SOURCES;USES;LINK" ${ARGN})
  add_library(room_${name} OBJECT ${ROOM_SOURCES})
  target_link_libraries(room_${name} PUBLIC fichario_options Qt6::Core ${ROOM_LINK} PRIVATE fichario_warnings)
  if(ROOM_WIDGETS)
    target_link_libraries(room_${name} PUBLIC Qt6::Gui Qt6::Widgets)
    target_precompile_headers(room_${name} PRIVATE <QApplication> <QPainter> <QWidget> <functional> <memory>)
  endif()
  fichario_closure(below ${ROOM_USES})
  set_property(GLOBAL PROPERTY FICHARIO_ROOM_${name} "${below}")
endfunction()

function(fichario_link_rooms target)
  fichario_closure(rooms ${ARGN})
  foreach(room IN LISTS rooms)
    target_link_libraries(${target} PRIVATE room_${room})
  endforeach()
  target_link_libraries(${target} PRIVATE fichario_warnings)
endfunction()

function(fichario_library name)
  add_library(Fichario${name} SHARED)
  add_library(Fichario::${name} ALIAS Fichario${name})
  set_target_properties(Fichario${name} PROPERTIES EXPORT_NAME ${name} VERSION ${PROJECT_VERSION} SOVERSION 0)
  set(libraries "")
  foreach(room IN LISTS ARGN)
    target_sources(Fichario${name} PRIVATE $<TARGET_OBJECTS:room_${room}>)
    get_target_property(links room_${room} INTERFACE_LINK_LIBRARIES)
    list(APPEND libraries ${links})
  endforeach()
  list(FILTER libraries EXCLUDE REGEX "fichario_warnings")
  list(REMOVE_DUPLICATES libraries)
  target_link_libraries(Fichario${name} PUBLIC ${libraries} PRIVATE fichario_warnings)
  if(NOT name STREQUAL "Core")
    target_link_libraries(Fichario${name} PUBLIC FicharioCore)
  endif()
  set_target_properties(Fichario${name} PROPERTIES LINKER_LANGUAGE CXX)
endfunction()

# The tests of an executable under names that begin with `prefix`, with the variables that follow. They come
# through env(1) as the program that runs the program: the discovery takes lists of properties apart.
function(fichario_discover name prefix)
  set_property(TARGET ${name} PROPERTY CROSSCOMPILING_EMULATOR
    env QT_QPA_PLATFORM=offscreen FIREBIRD_LOCK=${CMAKE_BINARY_DIR}/lock ${ARGN})
  set(fixtures "")
  if(prefix STREQUAL "tcp/")
    set(fixtures FIXTURES_REQUIRED servidor)
  endif()
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST TEST_PREFIX "${prefix}"
    PROPERTIES TIMEOUT ${TEST_SECONDS} ${fixtures})
endfunction()

# One executable of tests; every test has a time limit and runs without a screen. WIDGETS links the main that starts
# the screen side and runs under the locale of those who sit at screens, LOCALES runs the same tests once more under pt_BR.UTF-8, SERVER once more on a private server
# (tests/servidor), which is started before the first of them and stopped after the last.
function(fichario_test name)
  cmake_parse_arguments(TEST "WIDGETS;LOCALES;SERVER" "SECONDS" "SOURCES;USES;LINK" ${ARGN})
  if(NOT TEST_SECONDS)
    set(TEST_SECONDS 60)
  endif()
  add_executable(${name} ${TEST_SOURCES})
  if(TEST_WIDGETS)
    fichario_link_rooms(${name} ${TEST_USES})
    target_link_libraries(${name} PRIVATE test_support_ui)
  else()
    fichario_link_rooms(${name} ${TEST_USES})
    target_link_libraries(${name} PRIVATE test_support)
  endif()
  target_link_libraries(${name} PRIVATE GTest::gtest ${TEST_LINK})
  include(GoogleTest)
  if(TEST_WIDGETS)
    fichario_discover(${name} "" LC_ALL=pt_BR.UTF-8)
  else()
    fichario_discover(${name} "" LC_ALL=C)
  endif()
  if(TEST_LOCALES)
    fichario_discover(${name} "pt_BR/" LC_ALL=pt_BR.UTF-8)
  endif()
  if(TEST_SERVER)
    fichario_discover(${name} "tcp/" LC_ALL=C FICHARIO_TEST_SERVER=${CMAKE_BINARY_DIR}/servidor)
  endif()
endfunction()

# Writes the examples of a manual as the tests of `fixture` into <fixture>.inc, which a source of the test includes
# (tests/support/manual.awk tells the form). KIND: the word behind ```cpp of the blocks that are taken.
function(fichario_manual test fixture manual)
  cmake_parse_arguments(MANUAL "" "KIND" "" ${ARGN})
  set(script ${CMAKE_SOURCE_DIR}/tests/support/manual.awk)
  set(tests ${CMAKE_CURRENT_BINARY_DIR}/${fixture}.inc)
  add_custom_command(OUTPUT ${tests}
    COMMAND awk -v fixture=${fixture} -v kind=${MANUAL_KIND} -f ${script} ${manual} > ${tests}
    DEPENDS ${script} ${manual} VERBATIM)
  target_sources(${test} PRIVATE ${tests})
  target_include_directories(${test} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
endfunction()
