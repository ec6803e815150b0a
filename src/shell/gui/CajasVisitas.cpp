#include "shell/gui/CajasVisitas.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "shell/gui/EditorMemo.h"
#include "shell/gui/Filas.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

// Posición de sus textos entre los memos del caso.
constexpr std::size_t kMemoPrimeraVisita = 1;
constexpr std::size_t kMemoPrimeraObservacion = 4;

// Un campo lógico, como lo escribe el fichero.
constexpr const char* kSi = "Si";
constexpr const char* kNo = "No";

struct Intervencion {
  const char* campo;
  const char* rotulo;
};
constexpr std::array<Intervencion, 13> kIntervenciones = {{
    {"CBHuecos", "Huecos"},
    {"CBCubiertas", "Cubiertas"},
    {"CBFachadas", "Fachadas"},
    {"CBSuelos", "Suelos"},
    {"CBMedianeras", "Medianeras"},
    {"CBSombras", "Sombras"},
    {"CBGeneracionTermica", "Generación térmica"},
    {"CBRenovables", "Renovables"},
    {"CBIluminacion2", "Iluminación"},
    {"CBDistribucion", "Distribución"},
    {"CBRecuperacion", "Recuperación de energía"},
    {"CBOtras", "Otras"},
    {"CBUsoIntervencion", "Uso"},
}};

}  // namespace

QFormLayout* CeldaFormulario(QGridLayout* rejilla, std::size_t cual, int columnas) {
  auto* filas = new QFormLayout;
  filas->setContentsMargins(0, 0, 0, 0);
  const int i = static_cast<int>(cual);
  rejilla->addLayout(filas, i / columnas, i % columnas);
  return filas;
}

QWidget* CajasVisitas::Visitas() {
  return Caja(visitas_, QObject::tr("Visitas"), QObject::tr("Visita"), "NumeroVisitas",
              "FechaVisita", kMemoPrimeraVisita,
              QObject::tr("El certificado necesita al menos una visita. En él salen sus diez "
                          "primeras líneas"));
}

QWidget* CajasVisitas::Observaciones() {
  return Caja(observaciones_, QObject::tr("Observaciones"), QObject::tr("Observación"),
              "NumeroObservaciones", "FechaObservacion", kMemoPrimeraObservacion,
              QObject::tr("Pruebas, comprobaciones e inspecciones, si las hay"));
}

QWidget* CajasVisitas::Caja(Anotaciones& anotaciones, const QString& titulo, const QString& una,
                            const std::string& numero, const std::string& fecha,
                            std::size_t primerMemo, const QString& ninguna) {
  const auto [caja, filas] = NuevaCaja(titulo, pagina_);
  enlaces_.Lista(filas, numero, {"0", "1", "2", "3"}, OpcionesSinCalculo(QObject::tr("Cuántas")));
  anotaciones.ninguna = NuevaNota(caja);
  anotaciones.ninguna->setText(ninguna);
  filas->addRow(anotaciones.ninguna);
  for (std::size_t i = 0; i < anotaciones.cajas.size(); ++i) {
    const QString nombre = QString("%1 %2").arg(una).arg(i + 1);
    auto* bloque = new QWidget(caja);
    auto* columna = new QVBoxLayout(bloque);
    columna->setContentsMargins(0, 4, 0, 0);
    auto* fila = new QHBoxLayout;
    fila->addWidget(new QLabel(QObject::tr("%1. Fecha").arg(nombre), bloque));
    QLineEdit* dia = enlaces_.Celda(
        fecha + std::to_string(i + 1),
        OpcionesSinCalculo(QObject::tr("%1, fecha").arg(nombre), QObject::tr("dd/mm/aaaa")));
    dia->setMinimumWidth(110);
    dia->setMaximumWidth(140);
    fila->addWidget(dia);
    fila->addWidget(BotonCalendario(dia, bloque));
    fila->addStretch(1);
    columna->addLayout(fila);
    auto* memo = new EditorMemo(contexto_, primerMemo + i, nombre, bloque);
    memo->setObjectName(QString("Memo%1").arg(primerMemo + i));
    memos_.push_back(memo);
    columna->addWidget(memo);
    filas->addRow(bloque);
    anotaciones.cajas[i] = bloque;
  }
  return caja;
}

QWidget* CajasVisitas::Intervenciones() {
  auto* caja = new QGroupBox(QObject::tr("Intervenciones en el edificio"), pagina_);
  auto* rejilla = new QGridLayout(caja);
  PonerMargenes(caja);
  for (std::size_t i = 0; i < kIntervenciones.size(); ++i)
    enlaces_.Casilla(CeldaFormulario(rejilla, i, 3), kIntervenciones[i].campo,
                     OpcionesSinCalculo(kIntervenciones[i].rotulo), kSi, kNo);
  return caja;
}

void CajasVisitas::Refrescar() {
  const DatosGenerales& g = contexto_.Caso().GetDatosGenerales();
  const auto ensenar = [](const Anotaciones& anotaciones, float cuantas) {
    anotaciones.ninguna->setVisible(cuantas < 1);
    for (std::size_t i = 0; i < anotaciones.cajas.size(); ++i)
      anotaciones.cajas[i]->setVisible(static_cast<float>(i) < cuantas);
  };
  ensenar(visitas_, g.NumeroVisitas);
  ensenar(observaciones_, g.NumeroObservaciones);
  for (EditorMemo* memo : memos_) memo->Refrescar();
}

}  // namespace novex::gui
