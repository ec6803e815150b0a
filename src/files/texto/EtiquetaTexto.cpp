#include "files/texto/EtiquetaTexto.h"

#include <algorithm>

#include "base/Texto.h"

namespace novex {
namespace {

constexpr std::array<std::string_view, kSectores> kSectorTexto = {"norte", "oeste",    "sur-oeste",
                                                                  "sur",   "sur-este", "este"};

struct TablaSeccion {
  std::string_view nombre;
  std::span<const FilaTexto> (*filas)();
  GeneracionTexto desde = GeneracionTexto::Primera;
};
constexpr std::array<TablaSeccion, 11> kSecciones = {
    {{"Datos Generales", FilasGenerales},
     {"Datos Geograficos/obstaculos remotos", FilasGeograficos},
     {"Datos Globales", FilasGlobales},
     {"Puentes Termicos", FilasPuentes},
     {"Cubiertas", FilasCubiertas},
     {"Muros", FilasMuros},
     {"Suelos", FilasSuelos},
     {"Huecos", FilasHuecos},
     {"Capas materiales", FilasMateriales},
     {"Composiciones", FilasComposiciones},
     {"Pruebas", FilasPruebas, GeneracionTexto::Segunda}}};

// Añade una fila, con una etiqueta por sector si es de varios.
void Desplegar(const FilaTexto& fila, std::vector<EtiquetaTexto>& salida) {
  EtiquetaTexto nueva;
  nueva.destino = fila.destino;
  nueva.familia = fila.familia;
  nueva.porRecinto = fila.porRecinto;
  nueva.esDato = fila.esDato;
  nueva.texto = fila.etiqueta;
  const std::size_t arroba = nueva.texto.find('@');
  const auto* campo = std::get_if<Campo<RegistrosCaso>>(&fila.destino);
  if (arroba == std::string::npos || campo == nullptr) {
    salida.push_back(std::move(nueva));
    return;
  }
  for (std::size_t s = 0; s < campo->sectores; ++s) {
    EtiquetaTexto una = nueva;
    una.sector = campo->primerSector + s;
    una.texto.replace(arroba, 1, kSectorTexto.at(una.sector));
    salida.push_back(std::move(una));
  }
}

// Sin el punto final, una etiqueta puede ser el principio de otra ("... sur" y "... sur-este"): la
// más larga se prueba antes.
void QuitarPuntos(std::vector<EtiquetaTexto>& etiquetas) {
  for (EtiquetaTexto& e : etiquetas)
    if (e.texto.ends_with('.')) e.texto.pop_back();
  for (std::size_t i = 0; i < etiquetas.size(); ++i)
    for (std::size_t antes = 0; antes < i; ++antes)
      if (etiquetas[i].texto != etiquetas[antes].texto &&
          etiquetas[i].texto.find(etiquetas[antes].texto) != std::string::npos) {
        const auto inicio = etiquetas.begin();
        std::rotate(inicio + static_cast<std::ptrdiff_t>(antes),
                    inicio + static_cast<std::ptrdiff_t>(i),
                    inicio + static_cast<std::ptrdiff_t>(i) + 1);
        break;
      }
}

std::vector<SeccionTexto> Preparar(GeneracionTexto generacion) {
  std::vector<SeccionTexto> secciones;
  for (const TablaSeccion& tabla : kSecciones) {
    if (generacion < tabla.desde) continue;
    SeccionTexto seccion{tabla.nombre, {}};
    for (const FilaTexto& fila : tabla.filas())
      if ((fila.generaciones & static_cast<unsigned>(generacion)) != 0)
        Desplegar(fila, seccion.etiquetas);
    if (tabla.filas == FilasHuecos)
      for (EtiquetaTexto& columna : EtiquetasColumnas())
        seccion.etiquetas.push_back(std::move(columna));
    if (generacion == GeneracionTexto::Primera) QuitarPuntos(seccion.etiquetas);
    secciones.push_back(std::move(seccion));
  }
  return secciones;
}

// Lleva un valor a un campo; lo que no es de su lista no lo cambia.
template <class Registro>
void PonerCampo(EstadoTexto& e, const Campo<Registro>& campo, Registro& registro, Indice donde,
                const ValorTexto& valor) {
  const bool esTexto =
      std::holds_alternative<typename Campo<Registro>::template Acceso<std::string>>(campo.acceso);
  const bool entero = esTexto && campo.lista.empty();
  const std::string_view texto = entero ? valor.texto : SinBlancos(valor.texto);
  if (!campo.lista.empty() && !camposFichero::LeerPosicion(texto, campo.lista)) {
    if (!texto.empty()) e.Saltar(valor, "no es ninguno de los valores conocidos");
    return;
  }
  camposFichero::LeerCampo(campo, registro, donde, valor.etiqueta, texto, e.mensajes);
}

void PonerEnCaso(EstadoTexto& e, const EtiquetaTexto& etiqueta, const Campo<RegistrosCaso>& campo,
                 const ValorTexto& valor) {
  const auto tipo = e.Cursor(etiqueta.familia).Donde();
  if (!tipo) return e.Saltar(valor, "es de un elemento que no cabe");
  const Indice donde{*tipo, etiqueta.sector};
  if (!etiqueta.porRecinto) return PonerCampo(e, campo, e.r, donde, valor);
  const auto primero = e.EnPrimerRecinto();
  if (!primero) return e.Saltar(valor, "es de un recinto que no existe");
  float& area = std::get<Campo<RegistrosCaso>::Acceso<float>>(campo.acceso)(e.r, donde);
  const float anterior = *primero ? 0.0F : area;
  PonerCampo(e, campo, e.r, donde, valor);
  area += anterior;
}

}  // namespace

void PasarARecinto(EstadoTexto& e, const ValorTexto& valor) {
  const int numero =
      e.LeerEntero(valor, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
  CursorTexto& cursor = e.Cursor(FamiliaTexto::Recinto);
  if (!cursor.Poner(numero, e.recintos))
    e.Saltar(valor, "no hay tantos recintos; sus datos no se leen");
}

void SinSitio(EstadoTexto& e, const ValorTexto& valor) {
  if (!SinBlancos(valor.texto).empty()) e.Saltar(valor, "un proyecto de hoy no lo guarda");
}

const std::vector<SeccionTexto>& SeccionesDeTexto(GeneracionTexto generacion) {
  static const std::array<std::vector<SeccionTexto>, 3> todas = {
      Preparar(GeneracionTexto::Primera), Preparar(GeneracionTexto::Segunda),
      Preparar(GeneracionTexto::Tercera)};
  if (generacion == GeneracionTexto::Primera) return todas[0];
  return generacion == GeneracionTexto::Segunda ? todas[1] : todas[2];
}

void LeerValorTexto(EstadoTexto& e, const EtiquetaTexto& etiqueta, const ValorTexto& valor) {
  if (const auto* accion = std::get_if<AccionTexto>(&etiqueta.destino)) {
    if (*accion != nullptr) (*accion)(e, valor);
  } else if (const auto* campo = std::get_if<Campo<RegistrosCaso>>(&etiqueta.destino)) {
    PonerEnCaso(e, etiqueta, *campo, valor);
  } else if (const auto* columna = std::get_if<CampoColumna>(&etiqueta.destino)) {
    LeerColumna(e, *columna, valor);
  } else if (const auto* hueco = std::get_if<Campo<Huecos>>(&etiqueta.destino)) {
    if (!e.grupoValido) return e.Saltar(valor, "es de un grupo de huecos que no cabe");
    PonerCampo(e, *hueco, e.edificio.GetHuecos(e.grupoHuecos), {}, valor);
  } else {
    if (!e.capa) e.capa.emplace();
    PonerCampo(e, std::get<Campo<material>>(etiqueta.destino), *e.capa, {}, valor);
  }
}

}  // namespace novex
