# Cartesian and polar graphs: logic in zafro_core, windows in zafro_ui.
target_sources(zafro_ui PRIVATE ${CMAKE_CURRENT_LIST_DIR}/graphs_forms.cpp)
