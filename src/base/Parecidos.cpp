#include "base/Parecidos.h"

#include <algorithm>

#include "base/Texto.h"

namespace novex {
namespace {

// Letras de las que se busca desde las que un texto que la contiene es lo que se quería.
constexpr std::size_t kLetrasContenidas = 3;

// Letras que hay que poner, quitar o cambiar para pasar de un texto a otro.
std::size_t Distancia(std::string_view a, std::string_view b) {
  std::vector<std::size_t> fila(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j) fila[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = fila[0];
    fila[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t anterior = fila[j];
      fila[j] = std::min({fila[j] + 1, fila[j - 1] + 1, diagonal + (a[i - 1] != b[j - 1])});
      diagonal = anterior;
    }
  }
  return fila.back();
}

}  // namespace

std::vector<std::string> MasParecidos(std::string_view buscado,
                                      const std::vector<std::string>& opciones,
                                      std::size_t cuantos) {
  const std::string clave = ClaveBusqueda(buscado);
  std::vector<std::pair<std::size_t, std::string>> candidatos;
  for (const std::string& opcion : opciones) {
    const std::string otra = ClaveBusqueda(opcion);
    const bool contiene = clave.size() > kLetrasContenidas && otra.find(clave) != std::string::npos;
    candidatos.emplace_back(contiene ? 0 : Distancia(clave, otra), opcion);
  }
  std::sort(candidatos.begin(), candidatos.end());
  candidatos.erase(std::unique(candidatos.begin(), candidatos.end()), candidatos.end());
  std::vector<std::string> parecidos;
  for (std::size_t i = 0; i < std::min(cuantos, candidatos.size()); ++i)
    parecidos.push_back(std::move(candidatos[i].second));
  return parecidos;
}

std::string FraseParecidos(const std::vector<std::string>& parecidos) {
  std::string frase;
  for (const std::string& texto : parecidos)
    frase.append(frase.empty() ? "; se parecen: " : ", ").append(texto);
  return frase;
}

}  // namespace novex
