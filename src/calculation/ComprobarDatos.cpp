#include "calculation/ComprobarDatos.h"

#include <cmath>
#include <string>

#include "base/NumeroTexto.h"
#include "calculation/Entorno.h"

namespace novex {
namespace {

void Finito(float valor, const std::string& dato) {
  if (!std::isfinite(valor))
    throw ErrorCalculo("No se puede calcular: el dato \"" + dato + "\" no es un número finito");
}

void Positivo(float valor, const std::string& dato) {
  Finito(valor, dato);
  if (!(valor > 0.0F))
    throw ErrorCalculo("No se puede calcular: el dato \"" + dato + "\" es " + General(valor) +
                       " y debe ser mayor que 0");
}

template <typename Lista>
void TodosFinitos(const Lista& lista, const std::string& dato) {
  for (const float valor : lista) Finito(valor, dato);
}

void ComprobarRecinto(const Recinto& r) {
  Positivo(r.Suelo_habitable_m2, "Suelo_habitable_m2");
  Positivo(r.Volumen_total_m3, "Volumen_total_m3");
  TodosFinitos(r.Cubierta_horiz_sol_m2, "Cubierta_horiz_sol_m2");
  TodosFinitos(r.Cubierta_horiz_sombra_m2, "Cubierta_horiz_sombra_m2");
  for (const auto& tipo : r.Cubierta_incl_m2) TodosFinitos(tipo, "Cubierta_incl_m2");
  for (const auto& tipo : r.Cubierta_incl_Sombra_m2) TodosFinitos(tipo, "Cubierta_incl_Sombra_m2");
  for (const auto& tipo : r.Muro_ext_m2) TodosFinitos(tipo, "Muro_ext_m2");
  for (const auto& tipo : r.Muro_ext_Var_m2) TodosFinitos(tipo, "Muro_ext_Var_m2");
  TodosFinitos(r.Muro_otro_local_m2, "Muro_otro_local_m2");
  TodosFinitos(r.Muro_al_terreno_m2, "Muro_al_terreno_m2");
  TodosFinitos(r.Suelo_ext_m2, "Suelo_ext_m2");
  TodosFinitos(r.Suelo_otro_local_m2, "Suelo_otro_local_m2");
  TodosFinitos(r.Suelo_al_terreno_m2, "Suelo_al_terreno_m2");
}

void ComprobarHuecos(const Huecos& g) {
  Finito(g.Ancho_m, "Ancho_m");
  Finito(g.Alto_m, "Alto_m");
  Finito(g.U_cristal_W_m2K, "U_cristal_W_m2K");
  Finito(g.U_marco_W_m2K, "U_marco_W_m2K");
  Finito(g.FS_cristal_tanto_por_uno, "FS_cristal_tanto_por_uno");
  Finito(g.Fraccion_marco_tanto_por_cien, "Fraccion_marco_tanto_por_cien");
  Finito(g.Permeabilidad_Ventanas, "Permeabilidad_Ventanas");
}

void ComprobarPerfiles(const Perfiles& perfiles) {
  for (std::size_t f = 0; f < kFamilias; ++f)
    for (std::size_t d = 0; d < kClasesDia; ++d)
      TodosFinitos(perfiles.tabla[f][d],
                   std::string(kNombreFamilia[f]) + std::string(kNombreClaseDia[d]));
}

void SerieFinita(const SerieHoraria& serie, const char* etapa, const char* nombre) {
  for (int h = 1; h <= kHorasAno; ++h)
    if (!std::isfinite(serie[h]))
      throw ErrorCalculo(std::string("El cálculo ha dado un valor que no es finito. Etapa: ") +
                         etapa + ". Serie: " + nombre + ". Hora: " + std::to_string(h));
}

}  // namespace

void ComprobarDatosDeEntrada(const Edificio& edificio) {
  ComprobarRecinto(edificio.GetRecinto(0));
  for (std::size_t i = 0; i < kRanuras; ++i)
    Finito(edificio.GetComposicion(i).U, "U de " + std::string(TablaEnvolvente::Clave(i)));
  for (std::size_t i = 0; i < edificio.NumeroHuecos(); ++i) ComprobarHuecos(edificio.GetHuecos(i));
  ComprobarPerfiles(edificio.GetDatosGenerales().perfiles);
  Finito(edificio.GetVentilacion().nrenovventilacion, "nrenovventilacion");
  Finito(edificio.GetDatosGenerales().ConsumoAgua_litros_dia, "ConsumoAgua_litros_dia");
}

void ComprobarResultados(const calculo& caso) {
  SerieFinita(caso.clima.TSE, "clima", "TSE");
  SerieFinita(caso.clima.MLIGERO[norte], "clima", "MLIGERON");
  SerieFinita(caso.clima.CLIGEROH, "clima", "CLIGEROH");
  SerieFinita(caso.carga.QOCUPSh, "cargas", "QOCUPSh");
  SerieFinita(caso.zona.TSL, "balance", "TSL");
  SerieFinita(caso.zona.WL, "humedad", "WL");
  SerieFinita(caso.zona.DCAL, "balance", "DCAL");
  SerieFinita(caso.zona.DREF, "balance", "DREF");
  SerieFinita(caso.zona.DVENT, "balance", "DVENT");
  SerieFinita(caso.zona.CV, "ventilación", "CV");
  SerieFinita(caso.zona.DACS, "agua caliente", "DACS");
  for (std::size_t s = 0; s < kServicios; ++s)
    for (std::size_t u = 0; u < kUnidadesEnergia; ++u)
      for (std::size_t m = 0; m < 13; ++m)
        if (!std::isfinite(caso.resultados.servicio[s].porUnidad[u][m]))
          throw ErrorCalculo(
              "El cálculo ha dado un valor que no es finito. Etapa: cómputo de la "
              "energía. Servicio: " +
              std::string(kNombreServicio[s]) + ". Mes: " + std::to_string(m));
}

}  // namespace novex
