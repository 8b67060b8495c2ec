# numletras: the Spanish and English spellers in zafro_core, the window in zafro_ui
target_sources(zafro_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/numeros.cpp)
target_sources(zafro_ui PRIVATE ${CMAKE_CURRENT_LIST_DIR}/numletras_window.cpp)
