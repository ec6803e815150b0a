#pragma once

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "base/FicheroSeguro.h"
#include "files/ProyectoFichero.h"

namespace novex::pruebas {

inline const std::filesystem::path kTextosAntiguos = NOVEX_RAIZ_PRUEBAS "/casos/antiguos";

/// Un fichero de texto hecho con sus líneas.
inline std::string Unir(const std::vector<std::string>& lineas, const std::string& fin = "\n") {
  std::string texto;
  for (const std::string& linea : lineas) texto += linea + fin;
  return texto;
}

/// Un fichero de la tercera generación con las líneas de una sección.
inline std::string DeTercera(const std::string& seccion, std::vector<std::string> lineas,
                             const std::string& version = "NOVEX v5.0") {
  lineas.insert(lineas.begin(), {"*[S] Version.", version, "** Seccion.", seccion + "."});
  lineas.emplace_back("*[S] Final.");
  return Unir(lineas);
}

/// Los valores esperados de un ejemplo: su camino en el fichero de proyecto y su texto.
inline std::vector<std::pair<std::string, std::string>> Esperados(const std::string& nombre) {
  std::vector<std::pair<std::string, std::string>> valores;
  std::ifstream fichero(kTextosAntiguos / (nombre + ".esperado"));
  for (std::string linea; std::getline(fichero, linea);) {
    const std::size_t tabulador = linea.find('\t');
    valores.emplace_back(linea.substr(0, tabulador), linea.substr(tabulador + 1));
  }
  return valores;
}

/// El valor de un camino "A/B[2]/C" o "A/B@atributo" desde el elemento de un caso; "(falta)" si no
/// está.
inline std::string ValorEn(XMLNode nodo, std::string camino) {
  std::string atributo = "name";
  if (const std::size_t arroba = camino.find('@'); arroba != std::string::npos) {
    atributo = camino.substr(arroba + 1);
    camino.resize(arroba);
  }
  std::istringstream partes(camino);
  for (std::string parte; std::getline(partes, parte, '/');) {
    int cual = 1;
    if (const std::size_t corchete = parte.find('['); corchete != std::string::npos) {
      cual = std::stoi(parte.substr(corchete + 1));
      parte.resize(corchete);
    }
    XMLNode hijo;
    for (std::size_t i = 0; cual > 0; --cual) hijo = nodo.childNamed(parte, &i);
    nodo = hijo;
  }
  return std::string(nodo.attributeValue(atributo).value_or("(falta)"));
}

}  // namespace novex::pruebas
