#pragma once

#include <string>
#include <string_view>

namespace novex {

/// Número en notación fija, con `decimales` cifras tras el punto (0 a 20) y sin marca de millares.
/// Redondea el valor binario exacto, los empates al par, y nunca escribe un cero negativo.
/// Un valor no finito se escribe "0" con sus decimales.
std::string Fijo(double valor, int decimales);

/// Como `Fijo`, después de redondear el valor a `cifras` cifras significativas (1 a 17).
std::string FijoCifras(double valor, int cifras, int decimales);

/// La forma general más corta que devuelve el mismo número en simple precisión: "0.3", "1000",
/// "1E-5". Es la de los mensajes al usuario.
std::string General(float valor);

/// Redondea a `decimales` (0 a 6) como lo hace un paso por texto de decimales fijos: el resultado
/// es el real de simple precisión más cercano al decimal escrito; los empates exactos van al par.
float RedondearDecimales(float valor, int decimales);

/// Lee el número con que empieza un texto, como hace la función `atof` de C con el punto decimal:
/// salta blancos iniciales, se detiene en el primer carácter que no sigue, y da 0 si no hay número.
/// Los textos "nan" e "inf" no son números.
double RealInicial(std::string_view texto);

/// Lee el entero con que empieza un texto, como `atol`; fuera del rango de `long` da el extremo.
long EnteroInicial(std::string_view texto);

/// Lee un texto que ha de ser entero un número real, con punto o coma decimal y blancos alrededor.
/// \returns true y el número en `valor` si todo el texto lo es y es finito.
bool LeerReal(std::string_view texto, double& valor);

}  // namespace novex
