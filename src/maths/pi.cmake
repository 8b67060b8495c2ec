#pi : the digits and their worker thread in zafro_core, the window in zafro_ui
target_sources(zafro_core PRIVATE ${CMAKE_CURRENT_LIST_DIR} / pi.cpp)
    target_sources(zafro_ui PRIVATE ${CMAKE_CURRENT_LIST_DIR} / pi_window.cpp)
