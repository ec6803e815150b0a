#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace novex {

/// ¿Es el texto una secuencia válida de UTF-8?
bool EsUtf8(std::string_view bytes);

/// Pasa a UTF-8 un texto en Latin-1 con las letras que Windows-1252 añade entre 0x80 y 0x9F.
std::string Windows1252AUtf8(std::string_view bytes);

/// Pasa a UTF-8 un texto de codificación desconocida: lo deja como está si ya lo es, y si no lo
/// toma por Latin-1/Windows-1252.
std::string AUtf8(std::string_view bytes);

/// Añade a `destino` el carácter `codigo` en UTF-8. Un código que no es un carácter da U+FFFD.
void AnadirUtf8(std::string& destino, char32_t codigo);

/// El carácter con que empieza `texto` (no vacío, UTF-8) y cuántos bytes ocupa; un byte que no
/// forma carácter cuenta como uno de su mismo valor.
struct CaracterUtf8 {
  char32_t codigo;
  std::size_t bytes;
};
CaracterUtf8 PrimerCaracter(std::string_view texto);

/// El principio de un texto UTF-8 que cabe en `bytes`, sin partir una letra.
std::string_view PrincipioUtf8(std::string_view texto, std::size_t bytes);

/// Compara dos textos sin distinguir mayúsculas de minúsculas en las letras A a Z.
bool IgualesSinMayusculas(std::string_view a, std::string_view b);

/// El texto para comparar lo que se busca: en minúsculas y con las letras del español y de las
/// demás lenguas de España sin sus acentos; la eñe se busca como ene y la ce con cedilla como ce.
std::string ClaveBusqueda(std::string_view texto);

/// El texto sin blancos (espacio, tabulador, CR, LF) al principio ni al final.
std::string_view SinBlancos(std::string_view texto);

/// El texto sin blancos al final.
std::string_view SinBlancosFinales(std::string_view texto);

}  // namespace novex
