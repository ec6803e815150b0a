#include "compliance/TransmitanciasMaximas.h"

#include <algorithm>
#include <numeric>

#include "base/NumeroTexto.h"
#include "compliance/Requisitos.h"
#include "model/PropiedadesHueco.h"

namespace novex {
namespace {

using namespace ranura;

// Filas del documento, en su orden.
enum Fila : std::size_t {
  fila_muros,
  fila_terreno,
  fila_no_habitable,
  fila_medianeras,
  fila_suelos_exterior,
  fila_cubiertas,
  fila_huecos,
  fila_escaparates,
  fila_puertas,
  fila_horizontales,
  fila_verticales,
  fila_distinto_uso,
  fila_permeabilidad
};

constexpr const char* kUnidadU = "W/m2K";
constexpr const char* kUnidadC = "m3/hm2";

class Comprobador {
 public:
  Comprobador(const Edificio& edificio, const ResultadosCaso& resultados,
              TransmitanciasMaximas& maximas)
      : edificio_(edificio),
        recinto_(edificio.GetRecinto(0)),
        resultados_(resultados),
        maximas_(maximas),
        aplica_(AplicaRequisito(edificio.GetDatosGenerales(), Requisito::HE1Klim)) {}

  void Opacos() {
    const Recinto& r = recinto_;
    for (std::size_t i = 0; i < 5; ++i)
      Contar(fila_muros, Efectiva(MuroExt1 + i), Suma(r.Muro_ext_m2[i]), r.RMuroExtReh[i]);
    for (std::size_t i = 0; i < 3; ++i) {
      Contar(fila_terreno, Equivalente(SueloTerr1 + i), r.Suelo_al_terreno_m2[i],
             r.RSueloTerrenoReh[i]);
      Contar(fila_cubiertas, Efectiva(TechoExt1 + i), r.Cubierta_horiz_sol_m2[i],
             r.RCubiertaExtReh[i]);
      Contar(fila_cubiertas, Efectiva(TechoInc1 + i), Suma(r.Cubierta_incl_m2[i]),
             r.RCubiertaExtIncReh[i]);
    }
    for (std::size_t i = 0; i < 2; ++i) DeDosTipos(i);
  }

  void Huecos() {
    for (std::size_t i = 0; i < edificio_.NumeroHuecos(); ++i) {
      const novex::Huecos& g = edificio_.GetHuecos(i);
      const auto unidades = static_cast<float>(g.NumeroTotal());
      const Fila fila = g.Tipo_de_hueco == kEscaparate ? fila_escaparates
                        : g.Tipo_de_hueco == kPuerta   ? fila_puertas
                                                       : fila_huecos;
      Contar(fila, UVentana(g, 0, 0), unidades, g.HuecoReh);
      if (g.Tipo_de_hueco != kPuerta)
        Contar(fila_permeabilidad, g.Permeabilidad_Ventanas, unidades, g.HuecoReh);
    }
  }

 private:
  // Elementos que tienen dos tipos. Las particiones interiores no tienen área.
  void DeDosTipos(std::size_t i) {
    const Recinto& r = recinto_;
    constexpr std::array<Ranura, 2> kMuroNoHab = {MuroOtro3, MuroOtro7};
    constexpr std::array<Ranura, 2> kTechoNoHab = {TechoVent1, TechoVent3};
    constexpr std::array<Ranura, 2> kSueloNoHab = {SueloVent1, SueloVent3};
    Contar(fila_terreno, Equivalente(MuroTerr1 + i), r.Muro_al_terreno_m2[i], r.RMuroTerrenoReh[i]);
    Contar(fila_no_habitable, BU(kMuroNoHab[i]), r.Muro_otro_local_m2[i], r.RMuroOLocalReh[i]);
    Contar(fila_no_habitable, BU(kTechoNoHab[i]), r.Cubierta_techo_ventilado_m2[i],
           r.RCubiertaOLocalReh[i]);
    Contar(fila_no_habitable, BU(kSueloNoHab[i]), r.Suelo_otro_local_m2[i], r.RSueloOLocalReh[i]);
    Contar(fila_no_habitable, Equivalente(SueloOtro1 + i), r.Suelo_vacio_sanitario_m2[i],
           r.RSueloVacioReh[i]);
    Contar(fila_medianeras, Efectiva(MuroOtro1 + i), r.Muro_adiabatico_m2[i],
           r.RMuroDusoMedianeraReh[i]);
    Contar(fila_medianeras, Efectiva(TechoOtro1 + i), r.Cubierta_adiabatico_m2[i],
           r.RCubiertaDUsoMedianeraReh[i]);
    Contar(fila_medianeras, Efectiva(SueloOtro2 + i), r.Suelo_adiabatico_m2[i],
           r.RSueloDUsoMedianeraReh[i]);
    Contar(fila_suelos_exterior, Efectiva(SueloExt1 + i), r.Suelo_ext_m2[i],
           r.RSueloExteriorReh[i]);
    Interior(fila_horizontales, TechoInt1 + i, r.RCubiertaInteriorMUsoReh[i]);
    Interior(fila_horizontales, SueloInt1 + i, r.RSueloInteriorMUsoReh[i]);
    Interior(fila_verticales, MuroOtro2 + i, r.RMuroInteriorMUsoReh[i]);
    Interior(fila_distinto_uso, MuroOtro8 + i, r.RMuroInteriorDUsoReh[i]);
    Interior(fila_distinto_uso, TechoInt3 + i, r.RCubiertaInteriorDUsoReh[i]);
    Interior(fila_distinto_uso, SueloInt3 + i, r.RSueloInteriorDUsoReh[i]);
  }

  static float Suma(const PorSector& areas) {
    return std::accumulate(areas.begin(), areas.end(), 0.0F);
  }
  float Efectiva(std::size_t ranura) const { return resultados_.Uefectiva[ranura]; }
  float Equivalente(std::size_t ranura) const { return resultados_.Uequivalente[ranura]; }
  float BU(std::size_t ranura) const { return resultados_.bU[ranura]; }

  void Interior(Fila fila, std::size_t ranura, int interviene) {
    Contar(fila, Efectiva(ranura), Efectiva(ranura), interviene);
  }
  // \param cantidad área o unidades: sin ella el elemento no está
  void Contar(Fila fila, float valor, float cantidad, int interviene) {
    if (cantidad <= 0.0F) return;
    const bool cuenta = aplica_ == Aplicacion::Si || (aplica_ == Aplicacion::No && interviene != 0);
    if (!cuenta) return;
    FilaMaximo& f = maximas_.filas[fila];
    f.contados = true;
    f.valor = std::max(f.valor, valor);
  }

  const Edificio& edificio_;
  const Recinto& recinto_;
  const ResultadosCaso& resultados_;
  TransmitanciasMaximas& maximas_;
  Aplicacion aplica_;
};

std::string NotaFila(const FilaMaximo& fila, const LimitesMaximos& limites,
                     const DatosGenerales& generales) {
  const Aplicacion aplica = AplicaRequisito(generales, Requisito::HE1Klim);
  if (!fila.contados) {
    if (aplica == Aplicacion::Si) return "No hay elementos de esta clase";
    if (aplica == Aplicacion::No) return "Ningún elemento de esta clase se interviene";
    return NotaAplicacion(generales, aplica);
  }
  return limites.hay ? "" : "Faltan los límites de la zona";
}

Tabla TablaMaximos(const TransmitanciasMaximas& maximas) {
  Tabla tabla;
  tabla.titulo = "Valores máximos";
  tabla.cabeceras = {"CERRAMIENTO", "UPROYECTO", "UMAX", "CUMPLIMIENTO"};
  for (const FilaMaximo& fila : maximas.filas) {
    Celda proyecto(fila.TextoValor());
    if (fila.valor != 0.0F) proyecto.numero = static_cast<double>(fila.valor);
    tabla.filas.push_back({fila.rotulo, std::move(proyecto),
                           Celda::Numero(static_cast<double>(fila.limite), 2), fila.TextoCumple()});
  }
  return tabla;
}

}  // namespace

std::string FilaMaximo::TextoValor() const {
  return valor == 0.0F ? "---" : Fijo(static_cast<double>(valor), 2);
}

TransmitanciasMaximas ComprobarTransmitancias(const Edificio& edificio,
                                              const ResultadosCaso& resultados,
                                              const DocumentosHE& documentos) {
  TransmitanciasMaximas m;
  const LimitesMaximos limites =
      LeerValorMaximoU(documentos.valorMaximoU, edificio.GetLocalizacion().ZonaClimatica);
  const auto rotulos = LeerRotulosMaximo(documentos.valorMaximo);
  Comprobador comprobador(edificio, resultados, m);
  comprobador.Opacos();
  comprobador.Huecos();
  for (std::size_t i = 0; i < kFilasMaximo; ++i) {
    FilaMaximo& fila = m.filas[i];
    fila.rotulo = rotulos[i];
    fila.limite = limites.limite[i];
    fila.cumple = fila.valor <= fila.limite || fila.valor == 0.0F;
    m.cumple = m.cumple && fila.cumple;
    Veredicto v;
    v.seccion = kSeccionHE1;
    v.requisito = fila.rotulo;
    if (fila.contados) v.valor = static_cast<double>(fila.valor);
    v.limite = static_cast<double>(fila.limite);
    v.unidad = i == fila_permeabilidad ? kUnidadC : kUnidadU;
    v.veredicto = fila.TextoCumple();
    v.nota = NotaFila(fila, limites, edificio.GetDatosGenerales());
    v.aplica = fila.contados;
    v.pasa = fila.cumple;
    m.veredictos.push_back(std::move(v));
  }
  m.veredicto = m.cumple ? "Cumple U valores máximos" : "No Cumple U valores máximos";
  m.SGValorMaximo = TablaMaximos(m);
  return m;
}

}  // namespace novex
