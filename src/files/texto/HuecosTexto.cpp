#include <algorithm>

#include "files/LimitesProyecto.h"
#include "files/texto/EtiquetaTexto.h"
#include "model/ListasHuecos.h"

namespace novex {
namespace {

using H = Huecos;

// Pasa a un grupo; el que sigue a los que hay se añade en blanco.
void PasarAGrupo(EstadoTexto& e, const ValorTexto& valor) {
  const int numero =
      e.LeerEntero(valor, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
  // El primero ya está en un caso en blanco.
  const std::size_t hay = e.conGrupo ? e.edificio.NumeroHuecos() : 0;
  const std::size_t caben = std::min(hay + 1, limiteProyecto::kGruposHuecos);
  e.grupoValido = e.grupos.Poner(numero, caben);
  if (!e.grupoValido)
    return e.Saltar(valor, "los grupos de huecos van seguidos; sus datos no se leen");
  e.grupoHuecos = e.grupos.Donde().value_or(0);
  e.conGrupo = true;
  if (e.grupoHuecos == e.edificio.NumeroHuecos()) e.edificio.AnadirHuecos(H{});
}

float* SeparacionNorte(H& grupo, const CampoColumna& campo) {
  return &grupo.columnas[campo.columna].Separacion_ventanas_vertical;
}

constexpr std::array kHuecos = {
    Salto("*[I] Numero total grupos huecos definidos."),
    Control("*[I] Numero grupo huecos.", PasarAGrupo),
    Fila(Texto<&H::Nombre_hueco>("*[S] Nombre hueco.")),
    Fila(Real<&H::Ancho_m>("*[F] Ancho m.", 0)), Fila(Real<&H::Alto_m>("*[F] Alto m.", 0)),
    Fila(Real<&H::Retranqueo_m>("*[F] Retranqueo m.", 0)),
    Fila(Real<&H::Distancia_alero_m>("*[F] Distancia alero m.", 0)),
    Fila(Real<&H::Longitud_alero_m>("*[F] Longitud alero m.", 0)),
    Fila(Entero<&H::Indice_tipo_cristal>("*[I] Indice tipo cristal.")),
    Fila(Entero<&H::Indice_cristal_concreto>("*[I] Indice cristal concreto.")),
    Fila(Entero<&H::Indice_marco>("*[I] Indice marco.")),
    Fila(Entero<&H::Indice_tipo_junta>("*[I] Indice tipo junta.")),
    Fila(Entero<&H::Indice_tipo_sombra_fija>("*[I] Indice tipo sombra fija.")),
    Fila(Real<&H::U_cristal_W_m2K>("*[F] U cristal W/m2K.", 0)),
    Fila(Real<&H::FS_cristal_tanto_por_uno>("*[F] FS cristal tanto por uno.", 0)),
    Fila(Real<&H::U_marco_W_m2K>("*[F] U marco W/m2K.", 0)),
    Fila(Real<&H::Fraccion_marco_tanto_por_cien>("*[F] Fraccion marco %.", 0)),
    // La única etiqueta sin la clase de su valor.
    Fila(Real<&H::Valor_multiplicativo_FS_verano>("*Valor multiplicativo FS verano.", 0)),
    Fila(Real<&H::Valor_multiplicativo_FS_invierno>("*[F] Valor multiplicativo FS invierno.", 0)),
    Fila(Real<&H::Valor_multiplicativo_U_verano>("*[F] Valor multiplicativo U verano.", 0)),
    Fila(Real<&H::Valor_multiplicativo_U_invierno>("*[F] Valor multiplicativo U invierno.", 0)),
    Fila(Real<&H::U_Caja_de_persiana_W_m2K>("*[F] U Caja de persiana.", 0)),
    Fila(Real<&H::Altura_Caja_de_persiana_m>("*[F] Altura Caja de persiana m.", 0)),
    Fila(Real<&H::Vinf_Caja_de_persiana_m3_h>("*[F] Vinf Caja de persiana.", 0)),
    Fila(Real<&H::Permeabilidad_Ventanas>("*[F] Permeabilidad Ventanas.", 0)),
    Fila(Posicion<&H::Existe_Caja_persiana>("*[S] Existe Caja persiana: Existe/No existe.",
                                            listaHuecos::kExisteCaja)),
    Fila(Posicion<&H::Tipo_de_U_Caja_persiana>(
        "*[S] Tipo de U Caja persiana:Existe Caja persiana: Sin aislamiento/1-2 cm "
        "aislamiento/2-4 cm aislamiento/Se falicita U.",
        listaHuecos::kUCaja)),
    Fila(Posicion<&H::Tipo_de_Vinf_Caja_persiana>(
        "*[S] Tipo de Vinf Caja persiana: Estanco/1 mm rendija/2 mm rendija/Se facilita V.",
        listaHuecos::kInfiltracionCaja)),
    Fila(Posicion<&H::Tipo_de_hueco>("*[S] Tipo de hueco: Ventana/Puerta/Lucernario.",
                                     listaHuecos::kTipos)),
    Control("*[I] Numero Recinto.", PasarARecinto)};

void Cambiar(std::string& texto, std::string_view uno, std::string_view otro) {
  for (std::size_t i = texto.find(uno); i != std::string::npos; i = texto.find(uno, i))
    texto.replace(i, uno.size(), otro);
}

EtiquetaTexto EtiquetaDeColumna(const CampoColumna& campo) {
  EtiquetaTexto nueva;
  nueva.texto = campo.etiqueta;
  Cambiar(nueva.texto, "sur_", "sur-");
  // "sur_" es también el final de un sector ante la palabra que sigue.
  Cambiar(nueva.texto, "sur-altura", "sur altura");
  Cambiar(nueva.texto, "sur-distancia", "sur distancia");
  Cambiar(nueva.texto, "_", " ");
  nueva.texto = (campo.medida == nullptr ? "*[I] " : "*[F] ") + nueva.texto + ".";
  nueva.destino = campo;
  return nueva;
}

}  // namespace

std::span<const FilaTexto> FilasHuecos() {
  return kHuecos;
}

std::vector<EtiquetaTexto> EtiquetasColumnas() {
  std::vector<EtiquetaTexto> etiquetas;
  for (const CampoColumna& campo : CamposDeColumnas())
    etiquetas.push_back(EtiquetaDeColumna(campo));
  etiquetas.push_back(
      EtiquetaDeColumna({"Separacion_ventanas_vertical_norte", norte, 0, SeparacionNorte}));
  return etiquetas;
}

void LeerColumna(EstadoTexto& e, const CampoColumna& campo, const ValorTexto& valor) {
  if (!e.grupoValido) return e.Saltar(valor, "es de un grupo de huecos que no cabe");
  Huecos& grupo = e.edificio.GetHuecos(e.grupoHuecos);
  if (float* medida = campo.Medida(grupo)) {
    *medida = camposFichero::LeerReal(valor.texto, valor.etiqueta, e.mensajes);
    return;
  }
  const auto primero = e.EnPrimerRecinto();
  if (!primero) return e.Saltar(valor, "es de un recinto que no existe");
  ColumnaHuecos& columna = grupo.columnas[campo.columna];
  const std::size_t quedan = *primero ? 0 : columna.recintos.size();
  const std::size_t nuevos =
      quedan + static_cast<std::size_t>(e.LeerEntero(valor, 0, limiteProyecto::kHuecosColumna));
  const std::size_t demas = e.huecos - columna.recintos.size();
  if (nuevos > limiteProyecto::kHuecosColumna || demas + nuevos > limiteProyecto::kHuecos)
    return e.Saltar(valor, "pasa de los huecos que un proyecto puede tener");
  e.huecos = demas + nuevos;
  columna.PonerNumero(nuevos);
}

}  // namespace novex
