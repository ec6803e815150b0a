#include "shell/CambioCampos.h"

#include <algorithm>
#include <charconv>
#include <memory>
#include <vector>

#include "base/NumeroTexto.h"
#include "base/Parecidos.h"
#include "base/Texto.h"
#include "files/NodoConservadoXml.h"
#include "files/ProyectoFichero.h"
#include "model/CatalogoCampos.h"
#include "model/ClavesCampos.h"

namespace novex {
namespace {

constexpr std::string_view kValor = "name";

// Un tramo de una dirección: el nombre y lo que lleva entre corchetes.
struct Tramo {
  std::string nombre, indice;
};

std::vector<Tramo> LeerDireccion(std::string_view direccion) {
  std::vector<Tramo> tramos;
  for (std::size_t desde = 0; desde <= direccion.size();) {
    const std::size_t hasta = std::min(direccion.find('/', desde), direccion.size());
    const std::string_view texto = direccion.substr(desde, hasta - desde);
    const std::size_t corchete = texto.find('[');
    Tramo tramo{std::string(texto.substr(0, corchete)), {}};
    if (corchete != std::string_view::npos) {
      if (!texto.ends_with(']'))
        throw ErrorCampo("Falta cerrar el corchete en \"" + std::string(direccion) + "\"");
      tramo.indice = texto.substr(corchete + 1, texto.size() - corchete - 2);
    }
    if (tramo.nombre.empty()) throw ErrorCampo("La dirección de un campo no puede quedar vacía");
    tramos.push_back(std::move(tramo));
    desde = hasta + 1;
  }
  return tramos;
}

// Un valor del árbol de un caso: el atributo de un nodo y el camino hasta él.
struct Hoja {
  NodoConservado* nodo = nullptr;
  std::size_t atributo = 0;
  std::string etiqueta;
  struct Paso {
    const NodoConservado* nodo;
    std::size_t numero;  // entre los hermanos de su nombre, desde 1
  };
  std::vector<Paso> camino;

  const std::string& Valor() const { return nodo->atributos[atributo].second; }
  std::string Direccion() const {
    std::string texto;
    // El último contenedor basta para que se reconozca.
    if (!camino.empty())
      texto = camino.back().nodo->nombre + "[" + std::to_string(camino.back().numero) + "]/";
    return texto + etiqueta;
  }
};

class Recolector {
 public:
  std::vector<Hoja> hojas;

  void Recorrer(NodoConservado& nodo) {
    std::vector<std::pair<std::string_view, std::size_t>> cuentas;
    for (NodoConservado& hijo : nodo.hijos) {
      auto cuenta = std::find_if(cuentas.begin(), cuentas.end(),
                                 [&](const auto& c) { return c.first == hijo.nombre; });
      if (cuenta == cuentas.end()) cuenta = cuentas.insert(cuentas.end(), {hijo.nombre, 0});
      ++cuenta->second;
      const bool valor = hijo.atributos.size() == 1 && hijo.atributos[0].first == kValor;
      if (valor) hojas.push_back({&hijo, 0, hijo.nombre, camino_});
      camino_.push_back({&hijo, cuenta->second});
      if (!valor)
        for (std::size_t a = 0; a < hijo.atributos.size(); ++a)
          hojas.push_back({&hijo, a, hijo.atributos[a].first, camino_});
      Recorrer(hijo);
      camino_.pop_back();
    }
  }

 private:
  std::vector<Hoja::Paso> camino_;
};

// ¿Es el paso el que nombra un tramo? El índice puede ser el número o el nombre que le dio el
// usuario.
bool Casa(const Hoja::Paso& paso, const Tramo& tramo) {
  if (!IgualesSinMayusculas(paso.nodo->nombre, tramo.nombre)) return false;
  if (tramo.indice.empty()) return true;
  if (tramo.indice == std::to_string(paso.numero)) return true;
  return std::any_of(paso.nodo->hijos.begin(), paso.nodo->hijos.end(), [&](const auto& hijo) {
    return hijo.nombre.starts_with("Nombre_") && hijo.Atributo(kValor) == tramo.indice;
  });
}

// Los tramos van en orden y pueden saltarse contenedores.
bool Casa(const Hoja& hoja, const std::vector<Tramo>& tramos) {
  if (!IgualesSinMayusculas(hoja.etiqueta, tramos.back().nombre)) return false;
  auto paso = hoja.camino.begin();
  for (std::size_t t = 0; t + 1 < tramos.size(); ++t) {
    paso = std::find_if(paso, hoja.camino.end(), [&](const auto& p) { return Casa(p, tramos[t]); });
    if (paso == hoja.camino.end()) return false;
    ++paso;
  }
  return true;
}

[[noreturn]] void NoHayCampo(const std::vector<Hoja>& hojas, std::string_view direccion,
                             const std::string& etiqueta) {
  std::vector<std::string> etiquetas;
  for (const Hoja& hoja : hojas) etiquetas.push_back(hoja.etiqueta);
  throw ErrorCampo("No hay ningún campo \"" + std::string(direccion) + "\"" +
                   FraseParecidos(MasParecidos(etiqueta, etiquetas)));
}

// El valor que se escribe: el número comprobado, o el texto si es de los que admite el campo.
std::string ValorAdmitido(const std::string& etiqueta, std::string_view valor, Mensajes& mensajes) {
  if (const std::string_view clave = ClaveDeCampo(etiqueta); !clave.empty())
    return Fijo(static_cast<double>(ComprobarValor(valor, clave, mensajes)), 6);
  const auto textos = TextosDeCampo(etiqueta);
  if (!textos.empty() && std::find(textos.begin(), textos.end(), valor) == textos.end()) {
    std::string texto = etiqueta + " no admite \"" + std::string(valor) + "\"; puede ser";
    for (const std::string_view otro : textos) texto += " \"" + std::string(otro) + "\"";
    throw ErrorCampo(texto);
  }
  return std::string(valor);
}

NodoConservado ArbolDe(const Edificio& edificio) {
  XMLNode documento = XMLNode::createTop("xml version=\"1.0\" encoding=\"UTF-8\"");
  XMLNode casos = documento.appendChild("DatosPersonalizados");
  EscribirCaso(casos, edificio, true, {});
  return Conservar(casos.childAt(0));
}

std::unique_ptr<Edificio> EdificioDe(const NodoConservado& arbol, Mensajes& mensajes) {
  XMLNode documento = XMLNode::createTop("xml version=\"1.0\" encoding=\"UTF-8\"");
  Devolver(documento, arbol);
  auto edificio = std::make_unique<Edificio>();
  LeerCaso(documento.childAt(0), *edificio, mensajes);
  return edificio;
}

bool MismoValor(std::string_view a, std::string_view b) {
  double x = 0, y = 0;
  if (LeerReal(a, x) && LeerReal(b, y)) return x == y;
  return a == b;
}

}  // namespace

CampoCambiado CambiarCampo(Edificio& edificio, std::string_view direccion, std::string_view valor,
                           Mensajes& mensajes) {
  const std::vector<Tramo> tramos = LeerDireccion(direccion);
  NodoConservado arbol = ArbolDe(edificio);
  Recolector recolector;
  recolector.Recorrer(arbol);
  std::string nuevo;
  bool hay = false;
  for (std::size_t i = 0; i < recolector.hojas.size(); ++i) {
    const Hoja& hoja = recolector.hojas[i];
    if (!Casa(hoja, tramos)) continue;
    if (!hay) nuevo = ValorAdmitido(hoja.etiqueta, valor, mensajes);
    hay = true;
    const std::string antes = hoja.Valor();
    hoja.nodo->atributos[hoja.atributo].second = nuevo;
    RegistroMensajes alLeer;
    std::unique_ptr<Edificio> leido = EdificioDe(arbol, alLeer);
    NodoConservado vuelta = ArbolDe(*leido);
    Recolector despues;
    despues.Recorrer(vuelta);
    // Un dato que el fichero solo lleva para otros programas vuelve como estaba: se busca otro.
    const bool tomado = i < despues.hojas.size() && despues.hojas[i].etiqueta == hoja.etiqueta &&
                        (despues.hojas[i].Valor() != antes || MismoValor(antes, nuevo));
    if (tomado) {
      for (const Mensaje& m : alLeer.recibidos) mensajes.Avisar(m.titulo, m.texto);
      leido->SetDatosClimaticosSitio(edificio.GetDatosClimaticosSitio());
      edificio.TomarRegistros(std::move(*leido));
      return {hoja.Direccion(), antes, despues.hojas[i].Valor()};
    }
    hoja.nodo->atributos[hoja.atributo].second = antes;
  }
  if (hay)
    throw ErrorCampo("\"" + std::string(direccion) + "\" no se puede cambiar a \"" +
                     std::string(valor) + "\": no es de sus valores, o lo calcula el programa");
  NoHayCampo(recolector.hojas, direccion, tramos.back().nombre);
}

}  // namespace novex
