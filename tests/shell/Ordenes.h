#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "base/FicheroSeguro.h"
#include "base/Proceso.h"
#include "demand/GeneradorClima.h"
#include "files/CarpetaTemporal.h"
#include "files/ProyectoFichero.h"
#include "model/Cambios.h"

#ifndef NOVEX_EJECUTABLE_CLI
#define NOVEX_EJECUTABLE_CLI ""
#endif

namespace novex::pruebas {

/// Guarda un proyecto con la zona y la superficie útil dadas en su caso base, y tantas mejoras
/// iguales a él. Solo tiene un suelo adiabático, su consigna y el sistema de agua caliente: lo
/// justo para poderse calcular; sin agua caliente, las mejoras no se pueden.
inline void GuardarProyectoPrueba(const std::filesystem::path& ruta, const std::string& zona,
                                  float superficie, int mejoras, bool mejorasSinACS = false) {
  GestorEdifActivo gestor;
  gestor.NuevoProyecto();
  Edificio& base = gestor.Activo();
  Recinto& recinto = base.GetRecinto(0);
  recinto.Suelo_habitable_m2 = superficie;
  recinto.Suelo_adiabatico_m2[0] = superficie;
  base.GetComposicion(ranura::SueloOtro2).U = 1;
  SistemaResidencial sistema;
  sistema.Tipo_sistema = "ACS";
  Instalaciones& generador = sistema.instalaciones.emplace_back();
  generador.Seleccion = "1 Caldera";
  generador.TipoInstalacionesG = "Individual/Vivienda";
  generador.Distribucion = "Directo";
  generador.Alimentacion = "Alimentación agua red";
  generador.NEquipos = 1;
  base.AnadirSistema(sistema);
  PonerLugar(base, zona);
  CambiarGenerales(base, [&](DatosGenerales& generales) {
    generales.Equipos_Defecto = "SI";
    generales.perfiles.tabla[CTCh][0].fill(20);
  });
  for (int i = 0; i < mejoras; ++i) {
    gestor.AnadirMejora();
    while (mejorasSinACS && gestor.Activo().NumeroSistemas() > 0) gestor.Activo().BorrarSistema(0);
  }
  GuardarProyecto(gestor, ruta);
}

using Ejecucion = ResultadoProceso;

inline bool Contiene(const std::string& texto, const std::string& parte) {
  return texto.find(parte) != std::string::npos;
}

/// Comprueba que una ejecución acaba con un código y que su salida, o si no tiene, sus errores,
/// dicen unas partes.
inline void Espera(const Ejecucion& e, int codigo, const std::vector<std::string>& partes = {}) {
  EXPECT_EQ(e.codigo, codigo) << e.errores;
  for (const std::string& parte : partes)
    EXPECT_PRED2(Contiene, e.salida.empty() ? e.errores : e.salida, parte);
}

/// El programa de órdenes con una carpeta de programa propia, que tiene los datos y el clima de una
/// zona, y un proyecto en blanco.
class Ordenes : public testing::Test {
 protected:
  void SetUp() override {
    if (std::string(NOVEX_EJECUTABLE_CLI).empty()) GTEST_SKIP() << "sin novex-cli";
    std::filesystem::create_directories(programa() / "databaseCTE");
    std::filesystem::copy(std::filesystem::path(NOVEX_RAIZ_DATOS) / "database",
                          programa() / "database", std::filesystem::copy_options::recursive);
    static const std::string met = GenerarMet(
        LeerEstadisticasClima(std::filesystem::path(NOVEX_RAIZ_DATOS) / "clima"), "D3", "Oficial");
    EscribirFichero(programa() / "databaseCTE" / "ZonaD3.met", met);
  }
  std::filesystem::path programa() const { return raiz / "programa"; }
  /// Un proyecto con un caso base y las mejoras pedidas.
  std::string Proyecto(const std::string& zona = "D3", float superficie = 100, int mejoras = 0) {
    const std::filesystem::path ruta = raiz / "casa de campo.xml";
    GuardarProyectoPrueba(ruta, zona, superficie, mejoras);
    return ruta.string();
  }
  static Ejecucion Ejecutar(const std::vector<std::string>& argumentos) {
    return EjecutarProceso({NOVEX_EJECUTABLE_CLI, argumentos, {}}, {.bytes = 1U << 24U});
  }
  /// Una orden sobre algo, con la carpeta de programa propia.
  Ejecucion Orden(const std::string& orden, const std::string& sobre,
                  std::vector<std::string> mas = {}) const {
    mas.insert(mas.begin(), {orden, sobre});
    mas.insert(mas.end(), {"--programa", programa().string()});
    return Ejecutar(mas);
  }
  Ejecucion Calcular(const std::string& proyecto, std::vector<std::string> mas = {}) const {
    return Orden("calcular", proyecto, std::move(mas));
  }

  CarpetaTemporal carpeta_;
  std::filesystem::path raiz = (carpeta_ / "").parent_path();
};

}  // namespace novex::pruebas
