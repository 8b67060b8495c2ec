# areas: logic in zafro_core; window, drawing reader and the 24 drawings in zafro_ui
target_sources(zafro_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/areas.cpp)
target_sources(zafro_ui PRIVATE ${CMAKE_CURRENT_LIST_DIR}/areas_window.cpp
               ${CMAKE_CURRENT_LIST_DIR}/figura_svg.cpp)
set(_figuras)
foreach(_figura cubo ortoedro prisma piramide cilindro cono troncocono tetraedro octaedro
        dodecaedro icosaedro esfera huso zonaesferica casquete cuadrado rectangulo rombo
        triangulo trapecio poligono circulo sectorcircular elipse)
  list(APPEND _figuras ${PROJECT_SOURCE_DIR}/assets/maths/areas/${_figura}.svg)
endforeach()
qt_add_resources(zafro_ui "areas_assets" PREFIX "/" BASE ${PROJECT_SOURCE_DIR}/assets
                 FILES ${_figuras})
