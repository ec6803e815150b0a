#include "compliance/RequisitoHE3.h"

#include "base/NumeroTexto.h"

namespace novex {
namespace {

constexpr const char* kViviendas =
    "No es de aplicación en edificios residenciales en las viviendas";
constexpr const char* kZonasComunes = "No se compruebra en las zonas comunes del edificio";

// Los dos textos dicen lo mismo de los lux; con 600 justos la máxima es ya la segunda.
constexpr float kLuxPotenciaBaja = 600;
struct PotenciaMaxima {
  float valor;  // W/m2
  const char* texto;
};
constexpr PotenciaMaxima kBaja = {10,
                                  "Como la iluminación media en plano horizontal es menor o igual "
                                  "a 600 lux la potencia máxima son 10,00 W/m2 "};
constexpr PotenciaMaxima kAlta = {25,
                                  "Como la iluminación media en plano horizontal es menor o igual "
                                  "a 600 lux la potencia máxima son 25,00 W/m2"};

std::string Cifra(float valor) {
  return Fijo(static_cast<double>(valor), 2);
}

Veredicto Juzgar(const char* requisito, float valor, float limite, const char* unidad,
                 const std::string& nota) {
  const bool pasa = !(valor > limite);
  return {.seccion = std::string(kSeccionHE3),
          .requisito = requisito,
          .valor = valor,
          .limite = limite,
          .unidad = unidad,
          .veredicto = pasa ? "Cumple" : "No cumple",
          .nota = nota,
          .aplica = true,
          .pasa = pasa};
}

RequisitoHE3 NoAplicable() {
  RequisitoHE3 r;
  r.lineas = {kViviendas, kZonasComunes};
  r.veredictos = {{.seccion = std::string(kSeccionHE3),
                   .requisito = "Iluminación",
                   .valor = {},
                   .limite = {},
                   .unidad = {},
                   .veredicto = kViviendas,
                   .nota = kZonasComunes,
                   .aplica = false,
                   .pasa = true}};
  return r;
}

}  // namespace

RequisitoHE3 ComprobarHE3(const DatosGenerales& generales) {
  if (generales.EsResidencial()) return NoAplicable();
  const PotenciaMaxima& maxima = generales.Lux < kLuxPotenciaBaja ? kBaja : kAlta;
  const Veredicto potencia =
      Juzgar("Potencia instalada", generales.Iluminacion, maxima.valor, "W/m2", maxima.texto);
  const Veredicto eficiencia = Juzgar("VEII", generales.VEII, generales.VEIIMax,
                                      "W/m2 por cada 100 lux", generales.TipoVEIIMax);
  RequisitoHE3 r;
  r.aplica = true;
  r.pasa = potencia.pasa && eficiencia.pasa;
  r.lineas = {
      "Los lux de la instalación de iluminación son " + Cifra(generales.Lux),
      maxima.texto,
      "La potencia en iluminación de la instalación es = " + Cifra(generales.Iluminacion) + " W/m2",
      potencia.veredicto,
      "El VEIIlím es " + Cifra(generales.VEIIMax),
      "El VEII de la instalación es = " + Cifra(generales.VEII),
      eficiencia.veredicto};
  r.veredictos = {potencia, eficiencia};
  return r;
}

}  // namespace novex
