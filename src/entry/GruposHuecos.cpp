#include "entry/GruposHuecos.h"

#include <cmath>

#include "model/CatalogoCampos.h"

namespace novex {
namespace {

using H = Huecos;

template <auto... Campos>
void Copiar(const H& origen, H& destino) {
  ((destino.*Campos = origen.*Campos), ...);
}

// Los campos de cada conjunto, en el orden de `ConjuntoPropiedades`.
constexpr std::array<void (*)(const H&, H&), kConjuntosPropiedades> kCopias = {
    Copiar<&H::Indice_tipo_cristal, &H::Indice_cristal_concreto, &H::U_cristal_W_m2K,
           &H::FS_cristal_tanto_por_uno>,
    Copiar<&H::Indice_marco, &H::U_marco_W_m2K, &H::Fraccion_marco_tanto_por_cien>,
    Copiar<&H::Valor_multiplicativo_FS_verano, &H::Valor_multiplicativo_FS_invierno,
           &H::Valor_multiplicativo_U_verano, &H::Valor_multiplicativo_U_invierno>,
    Copiar<&H::Indice_tipo_sombra_fija>,
    Copiar<&H::Indice_tipo_sombra_movil>,
    Copiar<&H::Indice_tipo_control_Verano, &H::Indice_tipo_control_Invierno>,
    Copiar<&H::Indice_tipo_junta, &H::Permeabilidad_Ventanas>,
    Copiar<&H::Existe_Caja_persiana, &H::Tipo_de_U_Caja_persiana, &H::U_Caja_de_persiana_W_m2K,
           &H::Tipo_de_Vinf_Caja_persiana, &H::Vinf_Caja_de_persiana_m3_h,
           &H::Altura_Caja_de_persiana_m>};

}  // namespace

std::size_t AnadirGrupoHuecos(Edificio& edificio) {
  H grupo;
  grupo.Nombre_hueco = "Grupo_" + std::to_string(edificio.NumeroHuecos() + 1);
  edificio.AnadirHuecos(std::move(grupo));
  return edificio.NumeroHuecos() - 1;
}

bool QuitarGrupoHuecos(Edificio& edificio, std::size_t grupo) {
  edificio.GetHuecos(grupo);
  if (edificio.NumeroHuecos() == 1) return false;
  edificio.BorrarHuecos(grupo);
  return true;
}

void RenombrarGrupoHuecos(Edificio& edificio, std::size_t grupo, std::string_view nombre) {
  edificio.GetHuecos(grupo).Nombre_hueco = nombre;
}

void PonerNumeroHuecos(ColumnaHuecos& columna, std::string_view texto, Mensajes& mensajes) {
  columna.PonerNumero(static_cast<std::size_t>(ComprobarValor(texto, "NVentanas", mensajes)));
}

std::array<std::string_view, kSectores> RotulosColumnasHuecos(int tipoDeHueco) {
  if (tipoDeHueco == kLucernario)
    return {"Inclinada N...", "Inclinada O...", "Inclinada SO..",
            "Inclinada S...", "Inclinada SE..", "Inclinada E..."};
  return {"Ventana N...", "Ventana O...", "Ventana SO..",
          "Ventana S...", "Ventana SE..", "Ventana E..."};
}

std::string_view TextoBotonAsignar(std::string_view modoVision) {
  return modoVision == "Simplificado" ? "Asignar/Sombra" : "Asignar";
}

std::string TituloCopiaPropiedades(std::size_t grupo) {
  return "Copiar las propiedades térmicas de los huecos grupo " + std::to_string(grupo + 1) + " a:";
}

bool AdmiteCopiaPropiedades(const Huecos& grupo) {
  return grupo.Tipo_de_hueco != kPuerta && grupo.Tipo_de_hueco != kLucernario;
}

std::size_t CopiarPropiedadesHuecos(Edificio& edificio, std::size_t origen,
                                    std::span<const std::size_t> destinos,
                                    const SeleccionPropiedades& conjuntos) {
  const H& desde = edificio.GetHuecos(origen);
  if (!AdmiteCopiaPropiedades(desde) || conjuntos.none()) return 0;
  std::size_t copiados = 0;
  for (const std::size_t destino : destinos) {
    H& hacia = edificio.GetHuecos(destino);
    if (destino == origen || !AdmiteCopiaPropiedades(hacia)) continue;
    for (std::size_t i = 0; i < kCopias.size(); ++i)
      if (conjuntos.test(i)) kCopias[i](desde, hacia);
    ++copiados;
  }
  return copiados;
}

float AreaGrupoHuecos(const Huecos& grupo) {
  return static_cast<float>(grupo.NumeroTotal()) * grupo.Ancho_m * grupo.Alto_m;
}

void PonerVidrio(Huecos& grupo, const VidrioElegido& vidrio) {
  grupo.Indice_tipo_cristal = vidrio.tipo;
  grupo.Indice_cristal_concreto = vidrio.posicion;
  grupo.U_cristal_W_m2K = vidrio.U;
  grupo.FS_cristal_tanto_por_uno = vidrio.g;
}

void PonerMarco(Huecos& grupo, const MarcoElegido& marco) {
  grupo.Indice_marco = marco.tipo;
  grupo.U_marco_W_m2K = marco.U;
}

std::optional<VidrioElegido> VidrioDeCatalogo(const CatalogoVidrios& catalogo, const Huecos& grupo,
                                              int tipo, int posicion) {
  const VidrioCatalogo* v = catalogo.Vidrio(tipo, posicion);
  if (v == nullptr) return std::nullopt;
  return VidrioElegido{tipo, posicion, grupo.Tipo_de_hueco == kLucernario ? v->UH : v->U, v->g};
}

std::optional<MarcoElegido> MarcoDeCatalogo(const CatalogoVidrios& catalogo, const Huecos& grupo,
                                            int tipo, int posicion) {
  const MarcoCatalogo* m = catalogo.Marco(tipo, posicion);
  if (m == nullptr) return std::nullopt;
  return MarcoElegido{tipo, grupo.Tipo_de_hueco == kLucernario ? m->UH : m->U};
}

bool TieneVidrio(const Huecos& grupo, const VidrioElegido& vidrio) {
  constexpr float kMedioDecimal = 0.0051F;
  return std::fabs(grupo.U_cristal_W_m2K - vidrio.U) < kMedioDecimal &&
         std::fabs(grupo.FS_cristal_tanto_por_uno - vidrio.g) < kMedioDecimal;
}

void PonerPermeabilidad(Huecos& grupo, const ClasePermeabilidad& clase) {
  grupo.Indice_tipo_junta = clase.clase;
  grupo.Permeabilidad_Ventanas = clase.C100;
}

}  // namespace novex
