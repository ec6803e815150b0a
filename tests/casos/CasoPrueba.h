#pragma once

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "calculation/EjecutarCalculo.h"

namespace novex::pruebas {

/// Carpeta de los casos: `proyectos/`, `esperado/` y `programa/`.
std::filesystem::path CarpetaCasos();

/// Nombres de los casos de una clase ("v", "s", "t"), sin extensión y en orden.
std::vector<std::string> NombresCasos(char clase);

/// El proyecto de un caso, leído y calculado con una carpeta de programa.
struct CasoPrueba {
  CasoPrueba(const std::string& nombre, const std::filesystem::path& programa);

  const Edificio& Viejo() const { return *gestor.Caso(caso::kViejo); }
  const calculo& Resultado() const { return *Viejo().GetCalculo(); }

  GestorEdifActivo gestor;
  RegistroMensajes mensajes;
  bool calculado = false;
};

/// Una cifra del programa frente a la esperada.
struct Comparacion {
  std::string grupo;    ///< magnitud en la tabla de contraste
  std::string detalle;  ///< servicio, vector, mes u hora
  double esperado = 0;
  double obtenido = 0;
  double tolerancia = 0;  ///< en la misma unidad
  double Diferencia() const;
  /// Diferencia en veces la tolerancia: más de 1 es un desacuerdo.
  double Razon() const { return Diferencia() / tolerancia; }
};

/// Resultados esperados de un caso.
nlohmann::json LeerEsperado(const std::string& nombre);

/// Compara los valores del año y de los meses, por m2 de superficie útil.
std::vector<Comparacion> CompararResultados(const nlohmann::json& esperado, const CasoPrueba& caso);

/// Compara las series horarias con las de `esperado/<nombre>.csv`.
std::vector<Comparacion> CompararSeries(const std::string& nombre, const CasoPrueba& caso);

/// La peor comparación de cada grupo, en el orden en que aparecen.
std::vector<Comparacion> Peores(const std::vector<Comparacion>& todas);

}  // namespace novex::pruebas
