#include "shell/TareaImpresion.h"

#include <algorithm>
#include <exception>

#include "base/Proceso.h"
#include "demand/calculo.h"

namespace novex {
namespace {

constexpr const char* kPuntosPorPulgada = "92";

// Lo que deja a medias un trabajo interrumpido.
struct Interrumpido {};

class AvanceTarea : public Progreso {
 public:
  AvanceTarea(std::atomic<int>& avance, const std::atomic<bool>& cancelar)
      : avance_(avance), cancelar_(cancelar) {}
  void Avanzar(int porcentaje) override {
    // Lo que ya está escrito no se interrumpe.
    if (cancelar_ && porcentaje < 100) throw Interrumpido();
    avance_ = std::clamp(porcentaje * TareaImpresion::kAvanceFinal / 100,
                         TareaImpresion::kAvanceInicial, TareaImpresion::kAvanceFinal);
  }

 private:
  std::atomic<int>& avance_;
  const std::atomic<bool>& cancelar_;
};

}  // namespace

std::unique_ptr<GestorEdifActivo> CopiarConResultados(const GestorEdifActivo& gestor) {
  auto copia = std::make_unique<GestorEdifActivo>();
  copia->NuevoProyecto();
  const auto copiar = [&](std::string_view nombre) {
    const Edificio& origen = *gestor.Caso(nombre);
    Edificio& destino = *copia->Caso(nombre);
    destino.TomarRegistros(std::move(*origen.Clonar()));
    const auto& resultado = origen.GetCalculo();
    destino.QuitarCalculo();
    // También copiados: calificar el caso otra vez los escribe.
    if (resultado && resultado->Calculado())
      destino.SetCalculo(std::make_shared<calculo>(*resultado));
  };
  for (std::size_t i = 0; i < gestor.NumeroCasos(); ++i) {
    const std::string_view nombre = GestorEdifActivo::NombreCasoUsuario(i);
    if (i > 0) copia->CrearCasoVacio(nombre);
    copiar(nombre);
  }
  if (gestor.Existe(caso::kReferencia)) {
    copia->CrearReferencia();
    copiar(caso::kReferencia);
  }
  copia->ActivarCaso(gestor.NombreActivo());
  return copia;
}

TareaImpresion::TareaImpresion(const GestorEdifActivo& gestor, const EspacioTrabajo& espacio,
                               Trabajo trabajo)
    : copia_(CopiarConResultados(gestor)), trabajo_(std::move(trabajo)) {
  hilo_ = std::thread([this, espacio] { Hacer(espacio); });
}

TareaImpresion::~TareaImpresion() {
  cancelar_ = true;
  hilo_.join();
}

void TareaImpresion::Hacer(const EspacioTrabajo& espacio) {
  try {
    FicherosPrograma ficheros(espacio);
    AvanceTarea progreso(avance_, cancelar_);
    Entorno entorno{ficheros, mensajes_, progreso};
    trabajo_(*copia_, entorno);
  } catch (const Interrumpido&) {
    cancelada_ = true;
  } catch (const std::exception& error) {
    fallo_ = error.what();
  }
  acabada_ = true;
}

std::vector<std::filesystem::path> PaginasDePdf(const std::filesystem::path& pdf,
                                                const std::filesystem::path& carpeta) {
  const std::filesystem::path programa = BuscarPrograma("pdftoppm");
  if (programa.empty() || pdf.empty()) return {};
  const OrdenProceso orden = {
      programa,
      {"-r", kPuntosPorPulgada, "-png", std::filesystem::absolute(pdf).string(),
       (carpeta / "pagina").string()},
      carpeta};
  if (!EjecutarProceso(orden).Bien()) return {};
  std::vector<std::filesystem::path> paginas;
  for (const auto& fichero : std::filesystem::directory_iterator(carpeta))
    if (fichero.path().filename().string().starts_with("pagina-"))
      paginas.push_back(fichero.path());
  std::sort(paginas.begin(), paginas.end());  // con tantas cifras como hagan falta
  return paginas;
}

}  // namespace novex
