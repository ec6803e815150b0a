#include "entry/CambioUso.h"

#include <algorithm>
#include <array>
#include <utility>

#include "reference/PerfilesUso.h"

namespace novex {
namespace {

constexpr std::string_view kSimulacion = "Simulacion";
constexpr std::array<std::string_view, 3> kObjetivos = {"CertificacionSolo", "Certificacion",
                                                        kSimulacion};
constexpr int kUltimoPerfil = 15;
// En un uso terciario las ventanas no se abren de noche en verano.
constexpr const char* kVentanasAbiertas = "Abiertas";
constexpr const char* kVentanasCerradas = "Cerradas";

}  // namespace

bool CambiarObjetivo(GestorEdifActivo& gestor, std::string_view objetivo,
                     const XMLNode& perfilesUso, Mensajes& mensajes) {
  if (std::find(kObjetivos.begin(), kObjetivos.end(), objetivo) == kObjetivos.end()) return false;
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
    d.ManejoVentanas2 = eraResidencial ? kVentanasCerradas : kVentanasAbiertas;
    while (edificio.NumeroSistemas() > 0) edificio.BorrarSistema(edificio.NumeroSistemas() - 1);
  }
  edificio.SetDatosGenerales(std::move(d));
  AplicarUsoPorDefecto(perfilesUso, ClaveUsoPorDefecto(perfil), edificio, mensajes);
  edificio.QuitarCalculo();
  return true;
}

void CambiarTipoCertificado(Edificio& edificio, std::string_view tipo) {
  DatosGenerales d = edificio.GetDatosGenerales();
  d.TipoCertificado = tipo;
  d.Modo_trabajo = ModoTrabajoDe(d.TipoCertificado);
  edificio.SetDatosGenerales(std::move(d));
}

}  // namespace novex
