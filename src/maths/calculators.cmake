# calculadora, trigo, radian, temperatura, bisiesto: logic in zafro_core, windows in zafro_ui
foreach(_tool calculadora trigo radian temperatura bisiesto)
  target_sources(zafro_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/${_tool}.cpp)
  target_sources(zafro_ui PRIVATE ${CMAKE_CURRENT_LIST_DIR}/${_tool}_window.cpp)
endforeach()
