# Helpers that keep the core/ui boundary honest and the test targets uniform.

# Every source of zafro_core must stay free of QtGui/QtWidgets: the logic of each
# tool has to run without a display.
function(zafro_check_core_sources)
  get_target_property(_sources zafro_core SOURCES)
  get_target_property(_dir zafro_core SOURCE_DIR)
  foreach(_src IN LISTS _sources)
    if(NOT IS_ABSOLUTE "${_src}")
      set(_src "${_dir}/${_src}")
    endif()
    if(NOT EXISTS "${_src}")
      continue()
    endif()
    file(STRINGS "${_src}" _bad REGEX "#[ \t]*include[ \t]*[<\"](QtWidgets|QtGui|QWidget|QApplication|QMessageBox|QPainter|QColor|QPixmap|QImage|QDesktopServices|QClipboard|QGuiApplication|QScreen)")
    if(_bad)
      message(FATAL_ERROR "zafro_core must not use QtGui or QtWidgets: ${_src}: ${_bad}")
    endif()
  endforeach()
  get_target_property(_libs zafro_core LINK_LIBRARIES)
  foreach(_lib IN LISTS _libs)
    if(_lib MATCHES "Qt6?::(Widgets|Gui)")
      message(FATAL_ERROR "zafro_core must not link ${_lib}")
    endif()
  endforeach()
endfunction()

# zafro_add_test(<name> SOURCES <files...> [UI] [LABELS <labels...>])
# One GoogleTest executable per subsystem; UI tests link the windows as well.
function(zafro_add_test name)
  cmake_parse_arguments(ARG "UI" "" "SOURCES;LABELS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  if(ARG_UI)
    target_link_libraries(${name} PRIVATE zafro_test_support_ui)
  else()
    target_link_libraries(${name} PRIVATE zafro_test_support)
  endif()
  # One environment entry only: a list here would split the properties apart. The test
  # main picks the offscreen platform itself.
  set(_props ENVIRONMENT "ASAN_OPTIONS=detect_leaks=0")
  if(ARG_LABELS)
    list(APPEND _props LABELS "${ARG_LABELS}")
  endif()
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES ${_props})
endfunction()

# The lower floors (platform, runtime, shell) never include a tool's folder: tools
# build on them, and they reach tools only by window name or through hooks that the
# program installs. The tools and the shell share zafro_ui, so linking cannot tell.
function(zafro_check_floors)
  set(_tools maths formulas plates online identifiers games signals app)
  list(JOIN _tools "|" _alternatives)
  foreach(_floor platform runtime shell)
    file(GLOB_RECURSE _files CONFIGURE_DEPENDS
         "${PROJECT_SOURCE_DIR}/src/${_floor}/*.h" "${PROJECT_SOURCE_DIR}/src/${_floor}/*.cpp")
    foreach(_file IN LISTS _files)
      file(STRINGS "${_file}" _bad REGEX "#[ \t]*include[ \t]*[<\"](${_alternatives})/")
      if(_bad)
        message(FATAL_ERROR "${_file} reaches up into a tool folder: ${_bad}")
      endif()
    endforeach()
  endforeach()
endfunction()
