#include "entry/CambioUso.h"

#include <algorithm>
#include <utility>

#include "model/ClavesCampos.h"
#include "reference/PerfilesUso.h"

namespace novex {
namespace {

constexpr std::string_view kSimulacion = "Simulacion";
constexpr int kUltimoPerfil = 15;
// En un uso terciario las ventanas no se abren de noche en verano.
constexpr const char* kVentanasAbiertas = "Abiertas";
constexpr const char* kVentanasCerradas = "Cerradas";
constexpr const char* kUsoVivienda = "ResidencialPrivado";
constexpr const char* kUsoSinDecir = "Otro";

}  // namespace

bool CambiarObjetivo(GestorEdifActivo& gestor, std::string_view objetivo,
                     const XMLNode& perfilesUso, Mensajes& mensajes) {
  const auto objetivos = TextosDeCampo("Tiposimulacion");
  if (std::find(objetivos.begin(), objetivos.end(), objetivo) == objetivos.end()) return false;
  for (std::size_t i = 0; i < gestor.NumeroCasos(); ++i) {
    Edificio* caso = gestor.Caso(GestorEdifActivo::NombreCasoUsuario(i));
    if (caso == nullptr) continue;
    DatosGenerales d = caso->GetDatosGenerales();
    d.Tiposimulacion = objetivo;
    const bool recargar = d.EsResidencial() && objetivo == kSimulacion;
    caso->SetDatosGenerales(std::move(d));
    if (recargar) AplicarUsoPorDefecto(perfilesUso, ClaveUsoPorDefecto(0), *caso, mensajes);
    caso->QuitarCalculo();
  }
  return true;
}

bool CambiarPerfilUso(Edificio& edificio, int perfil, const XMLNode& perfilesUso,
                      Mensajes& mensajes) {
  if (perfil < 0 || perfil > kUltimoPerfil) return false;
  DatosGenerales d = edificio.GetDatosGenerales();
  const bool eraResidencial = d.EsResidencial();
  d.PerfilUso = perfil;
  const bool cambiaGrupo = eraResidencial != d.EsResidencial();
  if (cambiaGrupo) {
    // El uso de una vivienda no es de los que se eligen en un terciario.
    if (eraResidencial && (d.Uso.empty() || d.Uso == kUsoVivienda)) d.Uso = kUsoSinDecir;
    d.ManejoVentanas2 = eraResidencial ? kVentanasCerradas : kVentanasAbiertas;
    while (edificio.NumeroSistemas() > 0) edificio.BorrarSistema(edificio.NumeroSistemas() - 1);
  }
  edificio.SetDatosGenerales(std::move(d));
  AplicarUsoPorDefecto(perfilesUso, ClaveUsoPorDefecto(perfil), edificio, mensajes);
  edificio.QuitarCalculo();
  return true;
}

bool PerfilBorraSistemas(const Edificio& edificio, int perfil) {
  DatosGenerales nuevo;
  nuevo.PerfilUso = perfil;
  return edificio.NumeroSistemas() > 0 &&
         nuevo.EsResidencial() != edificio.GetDatosGenerales().EsResidencial();
}

bool CambiarTipoCertificado(Edificio& edificio, std::string_view tipo) {
  const auto tipos = TextosDeCampo("TipoCertificado");
  if (std::find(tipos.begin(), tipos.end(), tipo) == tipos.end()) return false;
  DatosGenerales d = edificio.GetDatosGenerales();
  d.TipoCertificado = tipo;
  d.Modo_trabajo = ModoTrabajoDe(d.TipoCertificado);
  edificio.SetDatosGenerales(std::move(d));
  return true;
}

}  // namespace novex
