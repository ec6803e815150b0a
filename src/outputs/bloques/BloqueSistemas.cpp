#include <algorithm>
#include <array>

#include "outputs/bloques/AuxiliaresSistema.h"
#include "outputs/bloques/Bloque.h"
#include "outputs/bloques/BloquesResultados.h"
#include "outputs/documentos/VariablesEquipos.h"
#include "outputs/documentos/VariablesEspacio.h"
#include "systems/ArregloACS.h"

namespace novex {
namespace {

using bloque::Grupo;
using bloque::Hoja;
using bloque::HojaCifra;
using Nodos = std::vector<NodoConservado>;

constexpr const char* kNombreSolar = "Inst.solar termica";
constexpr const char* kNombreFotovoltaica = "Fotovoltaica insitu";
constexpr const char* kNombreVentilacion = "EQUIPO EXCLUSIVO VENTILACION";
constexpr const char* kZonaUnica = "Unica";
constexpr std::array kServiciosId = {kACS, kCalefaccion, kRefrigeracion};
// Bombas de la instalación solar: su nombre, su magnitud horaria y su caudal, l/h.
struct BombaSolar {
  const char* nombre;
  const char* atributo;
  float DatosGenerales::*caudal;
};
constexpr std::array kBombasSolares = {
    BombaSolar{"CAPST", "WCS", &DatosGenerales::Caudal_Col_ST},
    BombaSolar{"DEPST", "WDEPS", &DatosGenerales::Caudal_Dep_ST},
    BombaSolar{"RECST", "WRECS", &DatosGenerales::Caudal_Rec_ST}};

std::string SiNo(bool valor) {
  return valor ? "Si" : "No";
}

// "ACSCAL-1", con los servicios del sistema y su número.
std::string IdSistema(TipoSistema tipo, std::size_t sistema) {
  std::string id;
  const std::array<bool, kServiciosDemanda> da = {DaACS(tipo), DaCalefaccion(tipo),
                                                  DaRefrigeracion(tipo)};
  for (const Servicio s : kServiciosId)
    if (da[s]) id += SiglaServicio(s);
  return id + "-" + std::to_string(sistema + 1);
}

NodoConservado Generador(const Edificio& edificio, const GeneradorServicio& g) {
  const std::string sigla(SiglaServicio(g.servicio));
  const std::string id =
      g.sustitucion
          ? sigla + "-DEFECTO"
          : IdSistema(TipoSistemaDe(edificio.GetSistema(g.sistema).Tipo_sistema), g.sistema);
  return Grupo(
      "Generador",
      {Hoja("Id", id + ":GEN" + std::to_string(g.generador)), Hoja("Nombre", g.unidad),
       Hoja("Multiplicador", std::to_string(g.equipos)), Hoja("Tipo", g.clase),
       Hoja("Servicio", sigla), HojaCifra("PotenciaNominal", g.potencia),
       HojaCifra("RendimientoNominal", g.rendimientoNominal),
       Hoja("RendimientoEstacional", TextoRendimientoEstacional(g, FormaRendimiento::Razon)),
       Hoja("VectorEnergetico",
            g.vector ? std::string(kNombreVector[Indice(*g.vector)]) : std::string())});
}

// Los captadores, si en el año han recibido sol.
void AnadirTermosolar(const CasoCalculado& caso, Nodos& nodos) {
  const DatosGenerales& d = caso.edificio->GetDatosGenerales();
  const TablasMensuales& m = caso.resultado->meses;
  const float irradiacion = m.irradiacionCaptadores[0];
  if (!(irradiacion > 0.0F)) return;
  const float captada = caso.resultado->resultados.servicio[kACS]
                            .finalPorVector[Indice(VectorEnergetico::Energiasolartermica)][0];
  const float superficie = static_cast<float>(d.N_colec_term) * d.Sup_colec_term;
  nodos.push_back(
      Grupo("GeneradorTermosolar",
            {Hoja("Id", "ACS-ST:GEN1"), Hoja("Nombre", kNombreSolar),
             Hoja("Multiplicador", std::to_string(d.N_colec_term)),
             Hoja("Tipo", "Captadores solares"), Hoja("Servicio", std::string(SiglaServicio(kACS))),
             Hoja("PotenciaNominal", ""), HojaCifra("RendimientoNominal", d.AA_colec_term),
             HojaCifra("RendimientoEstacional", captada / irradiacion),
             Hoja("VectorEnergetico",
                  std::string(kNombreVector[Indice(VectorEnergetico::Energiasolartermica)])),
             HojaCifra("Eficiencia", d.AA_colec_term), HojaCifra("Superficie", superficie)}));
}

void AnadirElectricos(const DatosGenerales& d, Nodos& nodos) {
  for (std::size_t i = 0; i < d.PotPico_FV.size(); ++i) {
    if (d.PotPico_FV[i] == 0.0F) continue;
    nodos.push_back(Grupo(
        "GeneradorElectrico",
        {Hoja("Id", "FV-" + std::to_string(i + 1) + ":GEN1"), Hoja("Nombre", kNombreFotovoltaica),
         Hoja("Multiplicador", "1"), Hoja("Tipo", "Fotovoltaica"), Hoja("Servicio", "NDEF"),
         HojaCifra("PotenciaNominal", d.PotPico_FV[i]),
         Hoja("VectorEnergetico",
              std::string(kNombreVector[Indice(VectorEnergetico::Energiasolarfotovoltaica)]))}));
  }
}

float Mayor(const SerieHoraria& serie) {
  return *std::max_element(serie.begin(), serie.end());
}

// La unidad de tratamiento de aire de un terciario.
void AnadirSecundario(const CasoCalculado& caso, Nodos& nodos) {
  const auto uta = UnidadDeAireDe(*caso.edificio);
  if (!uta) return;
  const SeriesZona& zona = caso.resultado->zona;
  nodos.push_back(Grupo("SistemaSecundario",
                        {Hoja("Id", "SEC-1"), Hoja("Nombre", uta->nombre),
                         Hoja("Tipo", caso.edificio->GetDatosGenerales().ManejoVentilacion),
                         Hoja("Zonas", kZonaUnica), Hoja("EnfriamientoEvaporativo", SiNo(false)),
                         Hoja("RecuperacionEnergia", SiNo(uta->recuperacion)),
                         Hoja("EnfriamientoGratuito", SiNo(uta->enfriamientoGratuito)),
                         HojaCifra("PotenciaVentilacion", Mayor(zona.CV) * 0.001F),
                         HojaCifra("CaudalImpulsion", Mayor(zona.CUTA))}));
}

struct DatosVentilador {
  std::string id, nombre, tipo;
  Servicio servicio;
  double caudal, especifica, consumo;
};

NodoConservado VentiladorBomba(const DatosVentilador& d) {
  return Grupo(
      "VentiladorBomba",
      {Hoja("Id", d.id), Hoja("Nombre", d.nombre), Hoja("Tipo", d.tipo),
       Hoja("Servicio", std::string(SiglaServicio(d.servicio))), HojaCifra("Caudal", d.caudal),
       HojaCifra("PotenciaEspecifica", d.especifica), HojaCifra("ConsumoAnual", d.consumo)});
}

// La mayor hora de una bomba es la que funciona entera. Una vivienda de un bloque cuenta su parte.
void AnadirBombasSolares(const CasoCalculado& caso, Nodos& nodos) {
  const DatosGenerales& d = caso.edificio->GetDatosGenerales();
  const float comparten = d.PerfilUso == 2 && d.NVBloqueF > 0.0F ? d.NVBloqueF : 1.0F;
  for (const BombaSolar& b : kBombasSolares) {
    const double kWh = SumaAnual(*caso.resultado, b.atributo) * 0.001;
    if (!(kWh > 0.0)) continue;
    const auto caudal = static_cast<double>(d.*b.caudal / comparten);  // l/h
    const double W = MayorAnual(*caso.resultado, b.atributo);
    nodos.push_back(VentiladorBomba({std::string("ACS-ST:") + b.nombre, kNombreSolar, "Bomba", kACS,
                                     caudal, caudal > 0.0 ? W / (caudal * 0.001) : 0.0, kWh}));
  }
}

void AnadirAuxiliares(const CasoCalculado& caso, Nodos& nodos) {
  const Edificio& edificio = *caso.edificio;
  for (std::size_t n = 0; n < edificio.NumeroSistemas(); ++n) {
    const SistemaResidencial& sistema = edificio.GetSistema(n);
    const std::string id = IdSistema(TipoSistemaDe(sistema.Tipo_sistema), n);
    for (const Instalaciones& instalacion : sistema.instalaciones) {
      const GeneradorPreparado g(edificio, sistema, instalacion, static_cast<int>(n) + 1);
      for (const AuxiliarSistema& a : AuxiliaresDeBloque(g, *caso.resultado))
        if (a.consumo > 0.0)
          nodos.push_back(VentiladorBomba({id + ":" + a.nombre, sistema.Nombre_sistema,
                                           a.ventilador ? "Ventilador" : "Bomba", a.servicio,
                                           a.caudal, a.especifica, a.consumo}));
    }
  }
  AnadirBombasSolares(caso, nodos);
  const float ventilacion = caso.resultado->meses.ventilacion[0];
  if (!(ventilacion > 0.0F)) return;
  const DatosDerivados::Caso aire = VentilacionDeCaso(caso);
  nodos.push_back(VentiladorBomba({"VEN-1", kNombreVentilacion, "Ventilador", kVentilacion,
                                   static_cast<double>(aire.Caudal2Vent),
                                   static_cast<double>(aire.PotenciaEspecificaVent),
                                   static_cast<double>(ventilacion)}));
}

NodoConservado Acumulador(std::string id, const std::string& nombre, float volumen, float perdidas,
                          std::string temperatura) {
  return Grupo("Acumulador",
               {Hoja("Id", std::move(id)), Hoja("Nombre", nombre), HojaCifra("Volumen", volumen),
                HojaCifra("Perdidas", perdidas), Hoja("Temperatura", std::move(temperatura))});
}

// Depósitos de consumo, con sus consignas, y el solar, que no tiene.
void AnadirAcumuladores(const Edificio& edificio, Nodos& nodos) {
  bool solar = false;
  for (std::size_t n = 0; n < edificio.NumeroSistemas(); ++n) {
    const SistemaResidencial& sistema = edificio.GetSistema(n);
    const TipoSistema tipo = TipoSistemaDe(sistema.Tipo_sistema);
    if (!DaACS(tipo)) continue;
    for (const Instalaciones& i : sistema.instalaciones) {
      const ArregloACS arreglo = ResolverArreglo(tipo, i);
      solar = solar || arreglo.depositoSolar;
      if (!arreglo.deposito) continue;
      const auto equipos = static_cast<float>(i.NEquipos);
      nodos.push_back(Acumulador(IdSistema(tipo, n) + ":DEP", sistema.Nombre_sistema,
                                 equipos * i.Volumen, equipos * i.UA_deposito,
                                 bloque::Cifra(i.TaltaD)));
    }
  }
  const DatosGenerales& d = edificio.GetDatosGenerales();
  if (solar)
    nodos.push_back(Acumulador("ACS-ST:DEP", kNombreSolar, d.Volumen_Dep_ST, d.UA_Dep_ST, ""));
}

}  // namespace

DatosDerivados::Caso VentilacionDeCaso(const CasoCalculado& caso) {
  DatosDerivados::Caso v;
  v.ConsumoVentilacionAExt = caso.resultado->meses.ventilacion[0];
  v.Caudal2Vent = caso.edificio->GetRecinto(0).Volumen_total_m3 *
                  caso.edificio->GetVentilacion().nrenovventilacion;
  if (v.Caudal2Vent > 0.0F)
    v.PotenciaEspecificaVent = Mayor(caso.resultado->zona.CV) / v.Caudal2Vent;
  return v;
}

NodoConservado BloqueSistemas(const CasoCalculado& caso) {
  NodoConservado bloque = Grupo("Sistemas");
  std::vector<GeneradorServicio> generadores;
  for (const Servicio s : kServiciosId)
    for (GeneradorServicio& g : GeneradoresDeServicio(caso, s)) generadores.push_back(std::move(g));
  for (const GeneradorServicio& g : generadores)
    bloque.hijos.push_back(Generador(*caso.edificio, g));
  AnadirTermosolar(caso, bloque.hijos);
  AnadirElectricos(caso.edificio->GetDatosGenerales(), bloque.hijos);
  AnadirSecundario(caso, bloque.hijos);
  AnadirAuxiliares(caso, bloque.hijos);
  AnadirAcumuladores(*caso.edificio, bloque.hijos);
  return bloque;
}

}  // namespace novex
