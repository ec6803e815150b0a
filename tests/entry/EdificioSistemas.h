#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "model/Edificio.h"

namespace novex::pruebas {

/// Un edificio de la zona D3 (calefacción 55 W/m2, refrigeración 50 W/m2).
inline std::unique_ptr<Edificio> EdificioD3(int perfilUso, float area, float litros,
                                            const std::string& modo = "Nuevo") {
  auto edificio = std::make_unique<Edificio>();
  edificio->GetRecinto(0).Suelo_habitable_m2 = area;
  DatosGenerales g = edificio->GetDatosGenerales();
  g.PerfilUso = perfilUso;
  g.ConsumoAgua_litros_dia = litros;
  g.Modo_trabajo = modo;
  edificio->SetDatosGenerales(g);
  Localizacion lugar = edificio->GetLocalizacion();
  lugar.ZonaClimatica = "D3";
  edificio->SetLocalizacion(lugar);
  return edificio;
}

/// Viviendas de los dos primeros tipos y baños del primero.
inline void PonerViviendas(Edificio& edificio, int primero, int segundo, int banyos = 1) {
  Ventilacion v = edificio.GetVentilacion();
  v.tipologias[0].N_viviendas = primero;
  v.tipologias[0].N_cuartos_de_banyo = banyos;
  v.tipologias[1].N_viviendas = segundo;
  edificio.SetVentilacion(v);
}

inline void PonerBloque(Edificio& edificio, float viviendas) {
  DatosGenerales g = edificio.GetDatosGenerales();
  g.NVBloqueF = viviendas;
  edificio.SetDatosGenerales(g);
}

inline SistemaResidencial Sistema(const std::string& tipo, const std::string& seleccion,
                                  const std::string& tipologia) {
  SistemaResidencial s;
  s.Tipo_sistema = tipo;
  s.instalaciones.resize(1);
  s.instalaciones[0].Seleccion = seleccion;
  s.instalaciones[0].TipoInstalacionesG = tipologia;
  return s;
}

/// Los números de un bloque que salen de una división o de una raíz.
inline std::array<float, 14> Numeros(const Instalaciones& b) {
  return {b.QcalorBC1,   b.WeCalor1,   b.QFrioTot1,     b.CaudalVent, b.Volumen,
          b.UA_deposito, b.AintermbD,  b.Long_tuberias, b.SBZ.Caudal, b.GEN1.Caudal,
          b.DEP.Caudal,  b.INT.Caudal, b.RET.Caudal,    b.SBZ.P};
}

/// Compara números de uno en uno con un error relativo de 1e-5.
inline void ExpectNumeros(const std::vector<float>& valores, const std::vector<double>& esperados) {
  ASSERT_EQ(valores.size(), esperados.size());
  for (std::size_t i = 0; i < valores.size(); ++i)
    EXPECT_NEAR(valores[i], esperados[i], 1e-5 * std::max(1.0, std::abs(esperados[i]))) << i;
}

}  // namespace novex::pruebas
