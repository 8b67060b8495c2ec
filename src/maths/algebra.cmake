# seggrado, sucesiones, diferencial, loga: logic in zafro_core, windows in zafro_ui
foreach(_tool seggrado sucesiones diferencial loga)
  target_sources(zafro_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/${_tool}.cpp)
  target_sources(zafro_ui PRIVATE ${CMAKE_CURRENT_LIST_DIR}/${_tool}_window.cpp)
endforeach()
