#include "outputs/administracion/InformeInstalaciones.h"

#include <algorithm>

#include "outputs/administracion/EscrituraInforme.h"
#include "outputs/documentos/EquiposServicio.h"
#include "outputs/documentos/VariablesEspacio.h"

namespace novex {
namespace {

constexpr const char* kEspacio = "Espacio";
constexpr const char* kUsuario = "Usuario";

// El primer perfil terciario es el 3; el último, el que define el usuario.
constexpr std::size_t kPrimerTerciario = 3;
constexpr std::array<std::string_view, 13> kPerfilesTerciarios = {
    "noresidencial-8h-baja",  "noresidencial-8h-media",  "noresidencial-8h-alta",
    "noresidencial-12h-baja", "noresidencial-12h-media", "noresidencial-12h-alta",
    "noresidencial-16h-baja", "noresidencial-16h-media", "noresidencial-16h-alta",
    "noresidencial-24h-baja", "noresidencial-24h-media", "noresidencial-24h-alta",
    "perfildeusuario"};

struct ListaGeneradores {
  Servicio servicio;
  const char* lista;
  const char* elemento;
};
constexpr std::array<ListaGeneradores, kServiciosDemanda> kListas = {
    {{kCalefaccion, "GeneradoresDeCalefaccion", "Generador"},
     {kRefrigeracion, "GeneradoresDeRefrigeracion", "Generador"},
     {kACS, "InstalacionesACS", "Instalacion"}}};

const char* ModoGenerador(const GeneradorServicio& g) {
  if (g.sustitucion) return "PorDefecto";
  return g.rendimientoEstacional ? "Estimado" : kUsuario;
}

void AnadirGenerador(XMLNode& lista, const char* elemento, const GeneradorServicio& g,
                     std::string_view vector) {
  XMLNode n = lista.appendChild(elemento);
  AnadirDato(n, "Nombre", g.unidad);
  AnadirDato(n, "Tipo", g.Etiqueta());
  AnadirCifra(n, "PotenciaNominal", g.potencia);
  AnadirCifra(n, "RendimientoNominal", g.rendimientoNominal);
  // El que no ha trabajado en el año conserva el que ha dado el usuario.
  AnadirCifra(n, "RendimientoEstacional", g.rendimientoEstacional.value_or(g.rendimientoNominal));
  AnadirDato(n, "VectorEnergetico", vector);
  AnadirDato(n, "ModoDeObtencion", ModoGenerador(g));
}

// Los generadores sin vector que se compre no tienen sitio en el esquema.
void AnadirGeneradores(XMLNode& instalaciones, const CasoCalculado& caso) {
  const std::string& provincia = caso.edificio->GetLocalizacion().Provincia;
  for (const ListaGeneradores& l : kListas) {
    XMLNode lista;
    for (const GeneradorServicio& g : GeneradoresDeServicio(caso, l.servicio)) {
      const std::string_view vector =
          g.vector ? VectorInforme(*g.vector, provincia) : std::string_view{};
      if (vector.empty()) continue;
      if (!lista) lista = instalaciones.appendChild(l.lista);
      AnadirGenerador(lista, l.elemento, g, vector);
    }
  }
}

const char* SiNo(bool valor) {
  return valor ? "Si" : "No";
}

void AnadirUnidadDeAire(XMLNode& instalaciones, const Edificio& edificio) {
  const auto uta = UnidadDeAireDe(edificio);
  if (!uta) return;
  XMLNode n = instalaciones.appendChild("SistemasSecundariosCalefaccionRefrigeracion")
                  .appendChild("Sistema");
  AnadirDato(n, "Nombre", uta->nombre);
  AnadirDato(n, "Tipo", "Unidad de tratamiento de aire");
  AnadirDato(n, "ZonaAsociada", "Unica");
  AnadirDato(n, "EnfriamientoEvaporativo", SiNo(false));
  AnadirDato(n, "RecuperacionEnergia", SiNo(uta->recuperacion));
  AnadirDato(n, "EnfriamientoGratuito", SiNo(uta->enfriamientoGratuito));
  AnadirDato(n, "TipoControl", uta->control);
}

// Consumo del año de un ventilador o de las bombas de un servicio.
struct Auxiliar {
  const char* nombre;
  const char* tipo;
  const char* servicio;
  float kWh;
};

void AnadirAuxiliares(XMLNode& instalaciones, const TablasMensuales& meses) {
  const auto bombas = [&](Servicio s) { return meses.bombas[s][0]; };
  const auto ventiladores = [&](Servicio s) { return meses.ventiladores[s][0]; };
  const std::array<Auxiliar, 6> auxiliares = {
      {{"Bombas de calefacción", "Bomba", "Calefaccion", bombas(kCalefaccion)},
       {"Bombas de refrigeración", "Bomba", "Refrigeracion", bombas(kRefrigeracion)},
       {"Bombas de ACS", "Bomba", "ACS", bombas(kACS)},
       {"Ventiladores de calefacción", "Ventilador", "Calefaccion", ventiladores(kCalefaccion)},
       {"Ventiladores de refrigeración", "Ventilador", "Refrigeracion",
        ventiladores(kRefrigeracion)},
       {"Ventiladores de ventilación", "Ventilador", "Ventilacion", meses.ventilacion[0]}}};
  XMLNode lista;
  for (const Auxiliar& a : auxiliares) {
    if (!(a.kWh > 0.0F)) continue;
    if (!lista) lista = instalaciones.appendChild("VentilacionyBombeo");
    XMLNode n = lista.appendChild("Sistema");
    AnadirDato(n, "Nombre", a.nombre);
    AnadirDato(n, "Tipo", a.tipo);
    AnadirDato(n, "ServicioAsociado", a.servicio);
    AnadirCifra(n, "ConsumoDeEnergia", a.kWh);
  }
}

}  // namespace

std::string_view PerfilDeUsoInforme(const DatosGenerales& generales) {
  if (generales.EsResidencial()) return "residencial-24h-baja";
  const auto i = static_cast<std::size_t>(generales.PerfilUso) - kPrimerTerciario;
  return kPerfilesTerciarios[std::min(i, kPerfilesTerciarios.size() - 1)];
}

void AnadirInstalacionesTermicas(XMLNode& informe, const CasoCalculado& caso) {
  XMLNode instalaciones = informe.appendChild("InstalacionesTermicas");
  AnadirGeneradores(instalaciones, caso);
  if (caso.edificio->GetDatosGenerales().EsResidencial()) return;
  AnadirUnidadDeAire(instalaciones, *caso.edificio);
  AnadirAuxiliares(instalaciones, caso.resultado->meses);
}

void AnadirIluminacion(XMLNode& informe, const Edificio& edificio) {
  const DatosGenerales& g = edificio.GetDatosGenerales();
  if (g.EsResidencial()) return;
  XMLNode n = informe.appendChild("InstalacionesIluminacion");
  AnadirCifra(n, "PotenciaTotalInstalada", g.Iluminacion);
  XMLNode espacio = n.appendChild(kEspacio);
  AnadirDato(espacio, "Nombre", kEspacio);
  AnadirCifra(espacio, "PotenciaInstalada", g.Iluminacion);
  AnadirCifra(espacio, "VEEI", g.VEII);
  AnadirCifra(espacio, "IluminanciaMedia", g.Lux);
  AnadirDato(espacio, "ModoDeObtencion", kUsuario);
}

void AnadirFuncionamiento(XMLNode& informe, const Edificio& edificio) {
  const DatosGenerales& g = edificio.GetDatosGenerales();
  if (g.EsResidencial()) return;
  XMLNode espacio =
      informe.appendChild("CondicionesFuncionamientoyOcupacion").appendChild(kEspacio);
  AnadirDato(espacio, "Nombre", kEspacio);
  AnadirCifra(espacio, "Superficie", edificio.GetRecinto(0).Suelo_habitable_m2);
  AnadirDato(espacio, "NivelDeAcondicionamiento", "Acondicionado");
  AnadirDato(espacio, "PerfilDeUso", PerfilDeUsoInforme(g));
}

}  // namespace novex
