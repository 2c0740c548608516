# The data installed under RutaPrograma (the build folder, beside the
# executable): Imagen/ with the blank databases, the factory catalogue, the
# wallpaper and the sample projects; all generated from data/.
set(IMAGEN ${CMAKE_BINARY_DIR}/Imagen)
file(MAKE_DIRECTORY ${IMAGEN})
set(DATOS_GENERADOS "")

foreach(nombre Proyecto Malla Trabajo Resultados BDColores)
  add_custom_command(
    OUTPUT ${IMAGEN}/${nombre}.nivo
    COMMAND fontaria_datos plantilla ${CMAKE_SOURCE_DIR}/data/esquemas/${nombre}.sql ${IMAGEN}/${nombre}.nivo
    DEPENDS fontaria_datos ${CMAKE_SOURCE_DIR}/data/esquemas/${nombre}.sql
    COMMENT "Plantilla ${nombre}.nivo")
  list(APPEND DATOS_GENERADOS ${IMAGEN}/${nombre}.nivo)
endforeach()

add_custom_command(
  OUTPUT ${IMAGEN}/BDPiezasConexiones.nivo
  COMMAND fontaria_datos catalogo ${CMAKE_SOURCE_DIR}/data/esquemas/BDPiezasConexiones.sql
          ${CMAKE_SOURCE_DIR}/data/catalogo/Piezas.tsv ${CMAKE_SOURCE_DIR}/data/catalogo/Conexiones.tsv
          ${IMAGEN}/BDPiezasConexiones.nivo
  DEPENDS fontaria_datos ${CMAKE_SOURCE_DIR}/data/esquemas/BDPiezasConexiones.sql
          ${CMAKE_SOURCE_DIR}/data/catalogo/Piezas.tsv ${CMAKE_SOURCE_DIR}/data/catalogo/Conexiones.tsv
  COMMENT "Catálogo de fábrica")
list(APPEND DATOS_GENERADOS ${IMAGEN}/BDPiezasConexiones.nivo)

add_custom_command(
  OUTPUT ${IMAGEN}/TapizNivo.jpg
  COMMAND fontaria_datos tapiz ${IMAGEN}/TapizNivo.jpg
  DEPENDS fontaria_datos
  COMMENT "Tapiz")
list(APPEND DATOS_GENERADOS ${IMAGEN}/TapizNivo.jpg)

# Sample building projects: data/muestras/edificios/NAME.json -> Imagen/NAME.nivo
file(GLOB MUESTRAS_EDIFICIOS CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/data/muestras/edificios/*.json)
foreach(json IN LISTS MUESTRAS_EDIFICIOS)
  get_filename_component(nombre ${json} NAME_WE)
  add_custom_command(
    OUTPUT "${IMAGEN}/${nombre}.nivo"
    COMMAND fontaria proyecto importar ${json} "${IMAGEN}/${nombre}.nivo"
    DEPENDS fontaria ${json} ${IMAGEN}/Proyecto.nivo
    COMMENT "Ejemplo ${nombre}")
  list(APPEND DATOS_GENERADOS "${IMAGEN}/${nombre}.nivo")
endforeach()

# Sample aqueduct networks: data/muestras/redes/NAME.json -> Imagen/NAME.nivo
file(GLOB MUESTRAS_REDES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/data/muestras/redes/*.json)
foreach(json IN LISTS MUESTRAS_REDES)
  get_filename_component(nombre ${json} NAME_WE)
  add_custom_command(
    OUTPUT "${IMAGEN}/${nombre}.nivo"
    COMMAND fontaria acueducto importar ${json} "${IMAGEN}/${nombre}.nivo"
    DEPENDS fontaria ${json} ${IMAGEN}/Malla.nivo
    COMMENT "Ejemplo ${nombre}")
  list(APPEND DATOS_GENERADOS "${IMAGEN}/${nombre}.nivo")
endforeach()

# The report templates: data/reportes/NAME.json -> Reportes/NAME.json, and
# the aqueduct's data/reportesacu/NAME.json -> ReportesACU/NAME.json
foreach(par IN ITEMS "reportes:Reportes" "reportesacu:ReportesACU")
  string(REPLACE ":" ";" par ${par})
  list(GET par 0 origen)
  list(GET par 1 destino)
  file(GLOB PLANTILLAS_REPORTES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/data/${origen}/*.json)
  foreach(json IN LISTS PLANTILLAS_REPORTES)
    get_filename_component(nombre ${json} NAME)
    add_custom_command(
      OUTPUT ${CMAKE_BINARY_DIR}/${destino}/${nombre}
      COMMAND ${CMAKE_COMMAND} -E copy_if_different ${json} ${CMAKE_BINARY_DIR}/${destino}/${nombre}
      DEPENDS ${json}
      COMMENT "Plantilla de reporte ${destino}/${nombre}")
    list(APPEND DATOS_GENERADOS ${CMAKE_BINARY_DIR}/${destino}/${nombre})
  endforeach()
endforeach()

# The manuals under Manual/: Spanish Markdown sources in data/manual rendered
# to PDF, and the main manual also as the HTML help (Manual/Ayuda/index.html).
set(MANUAL ${CMAKE_BINARY_DIR}/Manual)
file(MAKE_DIRECTORY ${MANUAL}/Ayuda)
foreach(nombre "ManualFontaria24" "Ejemplo Viviendas y Edificios" "Ejemplo Acueductos")
  add_custom_command(
    OUTPUT "${MANUAL}/${nombre}.pdf"
    COMMAND fontaria_datos manual "${CMAKE_SOURCE_DIR}/data/manual/${nombre}.md" "${MANUAL}/${nombre}.pdf"
    DEPENDS fontaria_datos "${CMAKE_SOURCE_DIR}/data/manual/${nombre}.md"
    COMMENT "Manual ${nombre}.pdf")
  list(APPEND DATOS_GENERADOS "${MANUAL}/${nombre}.pdf")
endforeach()
add_custom_command(
  OUTPUT ${MANUAL}/Ayuda/index.html
  COMMAND fontaria_datos ayuda ${CMAKE_SOURCE_DIR}/data/manual/ManualFontaria24.md ${MANUAL}/Ayuda/index.html
  DEPENDS fontaria_datos ${CMAKE_SOURCE_DIR}/data/manual/ManualFontaria24.md
  COMMENT "Ayuda index.html")
list(APPEND DATOS_GENERADOS ${MANUAL}/Ayuda/index.html)

add_custom_target(datos ALL DEPENDS ${DATOS_GENERADOS})
