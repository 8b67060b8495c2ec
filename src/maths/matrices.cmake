# matrices: logic in zafro_core, window in zafro_ui
target_sources(zafro_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/matrices.cpp)
target_sources(zafro_ui PRIVATE ${CMAKE_CURRENT_LIST_DIR}/matrices_window.cpp)
