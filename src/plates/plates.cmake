# Plates: logic in zafro_core, windows in zafro_ui.
target_sources(zafro_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/matriculas.cpp
  ${CMAKE_CURRENT_LIST_DIR}/provincias.cpp ${CMAKE_CURRENT_LIST_DIR}/data/provincias.qrc)
target_sources(zafro_ui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/plates_forms.cpp
  ${CMAKE_CURRENT_LIST_DIR}/plates_update.cpp
  ${CMAKE_CURRENT_LIST_DIR}/plates_fetch.cpp
  ${CMAKE_CURRENT_LIST_DIR}/matimportacion_window.cpp
  ${CMAKE_CURRENT_LIST_DIR}/current_pane.cpp
  ${CMAKE_CURRENT_LIST_DIR}/provincial_pane.cpp
  ${CMAKE_CURRENT_LIST_DIR}/matriculas_window.cpp
  ${CMAKE_CURRENT_LIST_DIR}/matacercade_window.cpp)
# The server's plates document also goes next to the program as the import's file.
configure_file(${PROJECT_SOURCE_DIR}/server/tirsamontes/matriculas4525.xml
  ${CMAKE_BINARY_DIR}/zafromdata.zfx COPYONLY)
