#include <exception>
#include <iostream>

#include "base/ErrorFichero.h"
#include "calculation/Entorno.h"
#include "files/ErroresXml.h"
#include "shell/cli/Ordenes.h"

namespace novex::cli {
namespace {

void Espanol(CLI::App& programa) {
  auto formato = std::make_shared<CLI::Formatter>();
  for (const auto& [ingles, espanol] : {std::pair{"Usage", "Uso"},
                                        {"Positionals", "Argumentos"},
                                        {"OPTIONS", "OPCIONES"},
                                        {"SUBCOMMAND", "ORDEN"},
                                        {"SUBCOMMANDS", "ÓRDENES"},
                                        {"REQUIRED", "(obligatorio)"}})
    formato->label(ingles, espanol);
  formato->column_width(32);
  programa.formatter(formato);
  programa.option_defaults()->group("Opciones");
  programa.group("Órdenes");
  programa.set_help_flag("-h,--help,--ayuda", "Muestra esta ayuda");
}

// Lo que está mal de una orden, en palabras del usuario.
std::string TextoErrorUso(const CLI::App& programa, const CLI::ParseError& error) {
  const std::string texto = error.what();
  // Los textos de la biblioteca empiezan por el nombre de la opción y dos puntos.
  const std::string opcion = texto.substr(0, texto.find(':'));
  switch (static_cast<CLI::ExitCodes>(error.get_exit_code())) {
    case CLI::ExitCodes::ExtrasError: {
      std::string sobra = "No se entiende:";
      for (const std::string& resto : programa.remaining(true)) sobra += " " + resto;
      return sobra;
    }
    case CLI::ExitCodes::RequiredError:
      if (texto.starts_with("A subcommand")) return "Falta la orden";
      return "Falta " + texto.substr(0, texto.find(" is required"));
    case CLI::ExitCodes::ArgumentMismatch:
      return "Falta el valor de " + opcion;
    case CLI::ExitCodes::ValidationError:
      return "Valor que no se admite en " + texto;
    default:
      return texto;
  }
}

// Escribe el error y da el código de salida que le corresponde.
int Fallar(const std::string& texto, int codigo) {
  std::cerr << texto << (texto.ends_with('\n') ? "" : "\n");
  return codigo;
}

int Ejecutar(int argc, char** argv) {
  CLI::App programa("Demanda, consumo y calificación energética de edificios", "novex-cli");
  Espanol(programa);
  programa.require_subcommand(1);
  Orden orden;
  AnadirCalcular(programa, orden);
  AnadirComprobar(programa, orden);
  AnadirInfo(programa, orden);
  AnadirClima(programa, orden);
  AnadirVerificar(programa, orden);
  AnadirAdministracion(programa, orden);
  AnadirMejoras(programa, orden);
  AnadirCertificado(programa, orden);
  AnadirBateria(programa, orden);
  AnadirExportar(programa, orden);
  AnadirExpres(programa, orden);
  AnadirNuevo(programa, orden);
  AnadirConvertir(programa, orden);
  AnadirCasos(programa, orden);
  AnadirCambiar(programa, orden);
  AnadirImagen(programa, orden);
  AnadirCatalogos(programa, orden);
  try {
    programa.parse(argc, argv);
  } catch (const CLI::Success& ayuda) {
    return programa.exit(ayuda);
  } catch (const CLI::ParseError& error) {
    return Fallar(TextoErrorUso(programa, error) + "\nVea novex-cli --help", kMalUso);
  }
  try {
    return orden();
  } catch (const ErrorUso& error) {
    return Fallar(error.what(), kMalUso);
  } catch (const ErrorFichero& error) {
    return Fallar(error.what(), EsDeLecturaXml(error) ? kXmlErroneo : kSinHacer);
  } catch (const std::exception& error) {
    return Fallar(error.what(), kSinHacer);
  }
}

}  // namespace

CLI::App* NuevaOrden(CLI::App& padre, const std::string& nombre, const std::string& descripcion) {
  CLI::App* orden = padre.add_subcommand(nombre, descripcion);
  orden->get_help_ptr()->group("Opciones");
  return orden;
}

}  // namespace novex::cli

int main(int argc, char** argv) {
  return novex::cli::Ejecutar(argc, argv);
}
