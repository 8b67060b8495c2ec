target_sources(zafro_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/parejas.cpp)
target_sources(zafro_ui PRIVATE ${CMAKE_CURRENT_LIST_DIR}/parejass_window.cpp)
qt_add_resources(zafro_ui "parejas_assets" PREFIX "/" BASE ${PROJECT_SOURCE_DIR}/assets FILES
  ${PROJECT_SOURCE_DIR}/assets/games/reverso.png
  ${PROJECT_SOURCE_DIR}/assets/games/manzana.png
  ${PROJECT_SOURCE_DIR}/assets/games/platano.png
  ${PROJECT_SOURCE_DIR}/assets/games/uvas.png
  ${PROJECT_SOURCE_DIR}/assets/games/fresa.png
  ${PROJECT_SOURCE_DIR}/assets/games/naranja.png
  ${PROJECT_SOURCE_DIR}/assets/games/pera.png
  ${PROJECT_SOURCE_DIR}/assets/games/cereza.png
  ${PROJECT_SOURCE_DIR}/assets/games/sandia.png
)
