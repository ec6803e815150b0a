#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace novex {

/// Los textos que más se parecen a uno mal escrito, el más cercano primero y sin repetir: los que
/// lo contienen y después los que menos letras cambian, sin contar mayúsculas ni acentos.
/// \param cuantos como mucho
std::vector<std::string> MasParecidos(std::string_view buscado,
                                      const std::vector<std::string>& opciones,
                                      std::size_t cuantos = 5);

/// Los textos parecidos como final de un aviso: "; se parecen: TSE, TSL". Vacío sin ninguno.
std::string FraseParecidos(const std::vector<std::string>& parecidos);

}  // namespace novex
