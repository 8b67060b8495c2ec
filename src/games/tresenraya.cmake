target_sources(zafro_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/tresenraya.cpp)
target_sources(zafro_ui PRIVATE ${CMAKE_CURRENT_LIST_DIR}/tresenraya_window.cpp
                                ${CMAKE_CURRENT_LIST_DIR}/tresenraya_linea.cpp
                                ${CMAKE_CURRENT_LIST_DIR}/tresenrayaayuda_window.cpp)
qt_add_resources(zafro_ui "tresenraya_assets" PREFIX "/" BASE ${PROJECT_SOURCE_DIR}/assets FILES
  ${PROJECT_SOURCE_DIR}/assets/games/tablero.png
  ${PROJECT_SOURCE_DIR}/assets/games/ficha1.png
  ${PROJECT_SOURCE_DIR}/assets/games/ficha2.png
  ${PROJECT_SOURCE_DIR}/assets/games/blanco.png
  ${PROJECT_SOURCE_DIR}/assets/games/seleccion1.png
  ${PROJECT_SOURCE_DIR}/assets/games/seleccion2.png
  ${PROJECT_SOURCE_DIR}/assets/games/lampara_amarilla.png
  ${PROJECT_SOURCE_DIR}/assets/games/lampara_roja.png
)
