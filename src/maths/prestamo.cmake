# prestamo: logic in zafro_core, window in zafro_ui
target_sources(zafro_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/prestamo.cpp)
target_sources(zafro_ui PRIVATE ${CMAKE_CURRENT_LIST_DIR}/prestamo_window.cpp)
