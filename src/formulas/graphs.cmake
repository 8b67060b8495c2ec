# Cartesian and polar graphs: logic in zafro_core, windows in zafro_ui.
foreach(_src coordenadas_muestreo coordenadas polares)
  target_sources(zafro_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/${_src}.cpp)
endforeach()
foreach(_src graphs_forms drawing_surface coordenadas_ui coordenadas_grafica coordenadas1_window
             coordenadas2_window polares1_window polares2_window)
  target_sources(zafro_ui PRIVATE ${CMAKE_CURRENT_LIST_DIR}/${_src}.cpp)
endforeach()
