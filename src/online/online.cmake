# The fetch cycle and the currency tools: logic in zafro_core, windows in zafro_ui.
target_sources(zafro_ui PRIVATE ${CMAKE_CURRENT_LIST_DIR}/online_forms.cpp)
