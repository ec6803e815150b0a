# Carpeta de programa en <build>/programa: los datos del repositorio y los ficheros de clima, que no se
# guardan en él y se generan una vez.
if(NOT TARGET novex-cli)
  return()
endif()

set(programa "${CMAKE_BINARY_DIR}/programa")
set(sello_datos "${CMAKE_BINARY_DIR}/carpeta_datos.sello")
set(sello_clima "${CMAKE_BINARY_DIR}/carpeta_clima.sello")

# Los catálogos que el usuario amplía no se copian encima: la versión nueva se funde con lo suyo.
set(ampliables "${CMAKE_SOURCE_DIR}/data/database/Materiales.xml"
               "${CMAKE_SOURCE_DIR}/data/database/Composiciones.xml")
set(copias "")
set(datos "")
# Añade a la copia de los datos unos ficheros, a una carpeta del programa.
macro(copiar_en carpeta)
  list(APPEND datos ${ARGN})
  list(APPEND copias COMMAND "${CMAKE_COMMAND}" -E make_directory "${programa}/${carpeta}")
  if(${ARGC} GREATER 1)
    list(APPEND copias COMMAND "${CMAKE_COMMAND}" -E copy_if_different ${ARGN}
                               "${programa}/${carpeta}")
  endif()
endmacro()
foreach(carpeta IN ITEMS database proyectos bmp clima)
  file(GLOB_RECURSE ficheros CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/data/${carpeta}/*")
  list(REMOVE_ITEM ficheros ${ampliables})
  copiar_en(${carpeta} ${ficheros})
endforeach()
foreach(carpeta IN ITEMS manual manual/imagenes)
  file(GLOB ficheros CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/docs/${carpeta}/*.md"
                                       "${CMAKE_SOURCE_DIR}/docs/${carpeta}/*.png")
  copiar_en(${carpeta} ${ficheros})
endforeach()
add_custom_command(
  OUTPUT "${sello_datos}" ${copias}
  COMMAND "${CMAKE_COMMAND}" -E touch "${sello_datos}"
  DEPENDS ${datos}
  COMMENT "Copiando los datos a la carpeta de programa"
  VERBATIM)
add_custom_target(carpeta_datos ALL DEPENDS "${sello_datos}")

set(sello_catalogos "${CMAKE_BINARY_DIR}/catalogos.sello")
add_custom_command(
  OUTPUT "${sello_catalogos}"
  COMMAND novex-cli catalogos actualizar "${CMAKE_SOURCE_DIR}/data/database" --programa "${programa}"
  COMMAND "${CMAKE_COMMAND}" -E touch "${sello_catalogos}"
  DEPENDS ${ampliables} "${sello_datos}"
  COMMENT "Poniendo al día los catálogos"
  VERBATIM)
add_custom_target(catalogos ALL DEPENDS "${sello_catalogos}")
add_dependencies(catalogos carpeta_datos)

# El clima depende de lo que lo determina y no del ejecutable: enlazar de nuevo no lo rehace.
file(GLOB estadisticas CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/data/clima/*.csv")
set(generador "")
foreach(fuente IN ITEMS GeneradorClima EstadisticasClima RadiacionSintetica SecuenciaDias PosicionSolar
                        FicheroMet)
  file(GLOB ficheros CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/src/demand/${fuente}.*")
  list(APPEND generador ${ficheros})
endforeach()
if(generador AND estadisticas)
  add_custom_command(
    OUTPUT "${sello_clima}"
    COMMAND novex-cli clima generar --programa "${programa}"
    COMMAND "${CMAKE_COMMAND}" -E touch "${sello_clima}"
    DEPENDS ${estadisticas} ${generador}
    COMMENT "Generando los ficheros de clima"
    VERBATIM)
else()
  message(STATUS "Sin generador de clima: la carpeta de programa queda sin ficheros de clima")
  set(sello_clima "")
endif()
add_custom_target(carpeta_programa ALL DEPENDS ${sello_clima})
add_dependencies(carpeta_programa carpeta_datos)
