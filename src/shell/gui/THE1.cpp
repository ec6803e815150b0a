#include "shell/gui/THE1.h"

#include <QVBoxLayout>
#include <array>

#include "base/ErrorFichero.h"
#include "outputs/CasoCalculado.h"
#include "shell/gui/BloqueVerificacion.h"
#include "shell/gui/PaginaHE.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr const char* kHE1 = "HE1";
constexpr const char* kAno = "Cifras del año";
constexpr std::array kSueltas = {HojaHE::Resumen, HojaHE::HE0, HojaHE::HE3, HojaHE::HE4,
                                 HojaHE::HE5};
constexpr std::array kDeHE1 = {HojaHE::Global, HojaHE::Maximas, HojaHE::Condensaciones};

void PonerMarca(PaginaPestanas& pestanas, const QString& titulo,
                const std::optional<MarcaHE>& marca) {
  if (marca)
    pestanas.Marcar(titulo, IconoMarca(*marca), Q(TextoMarca(*marca)));
  else
    pestanas.Marcar(titulo, {}, {});
}

}  // namespace

THE1::THE1(ContextoGui& contexto, QWidget* padre) : PaginaPestanas(contexto, padre) {
  auto* columna = static_cast<QVBoxLayout*>(layout());
  fallo_ = new QLabel(this);
  fallo_->setProperty("papel", "aviso");
  alcance_ = new QLabel(this);
  alcance_->setObjectName("alcance");
  alcance_->setProperty("papel", "nota");
  for (QLabel* texto : {alcance_, fallo_}) {
    texto->setWordWrap(true);
    texto->setContentsMargins(12, 6, 12, 6);
    columna->insertWidget(0, texto);
  }
  const auto hoja = [&](PaginaPestanas* donde, HojaHE cual) {
    donde->Anadir(new PaginaHE(contexto, cual, verificacion_), Q(TituloHojaHE(cual)));
  };
  // Añadir la primera pestaña la elige, y elegirla sería ya calcular.
  const QSignalBlocker callada(findChild<QTabWidget*>());
  he1_ = new PaginaPestanas(contexto);
  for (const HojaHE cual : kDeHE1) hoja(he1_, cual);
  hoja(this, HojaHE::Resumen);
  hoja(this, HojaHE::HE0);
  Anadir(he1_, kHE1);
  hoja(this, HojaHE::HE3);
  hoja(this, HojaHE::HE4);
  Anadir(new PaginaHE5(contexto, verificacion_), Q(TituloHojaHE(HojaHE::HE5)));
  Anadir(new PaginaAnoHE(contexto), kAno);
  hoja(this, HojaHE::Coeficientes);
}

void THE1::Verificar() {
  verificacion_.reset();
  const auto& resultado = contexto_.Caso().GetCalculo();
  if (!resultado) return;
  const std::filesystem::path datos = contexto_.Ficheros().Espacio().Datos();
  try {
    verificacion_ = VerificarHE(contexto_.Caso(), *resultado, LeerDocumentosHE(datos));
  } catch (const ErrorFichero& error) {
    // Con un fichero de límites estropeado no se juzga nada.
    return DecirFallo(Q(error.what()));
  }
  if (EscribirDocumentosHE(datos, *verificacion_) != 0)
    DecirFallo(tr("No se han podido escribir los documentos de trabajo en \"%1\"").arg(Q(datos)));
}

void THE1::DecirFallo(const QString& texto) {
  fallo_->setText(texto);
  fallo_->show();
}

void THE1::PonerMarcas() {
  const auto marca = [this](HojaHE hoja) {
    return verificacion_ ? MarcaHoja(hoja, *verificacion_) : std::nullopt;
  };
  for (const HojaHE hoja : kSueltas) PonerMarca(*this, Q(TituloHojaHE(hoja)), marca(hoja));
  for (const HojaHE hoja : kDeHE1) PonerMarca(*he1_, Q(TituloHojaHE(hoja)), marca(hoja));
  PonerMarca(*this, kHE1, verificacion_ ? std::optional(MarcaHE1(*verificacion_)) : std::nullopt);
}

void THE1::Refrescar() {
  const bool calculado = contexto_.Calcular();
  fallo_->setText(contexto_.FalloCalculo());
  fallo_->setVisible(!calculado);
  QStringList alcance;
  for (const std::string& texto : AlcanceVerificacion(contexto_.Caso().GetDatosGenerales()))
    alcance << Q(texto);
  alcance_->setText(alcance.join(' '));
  Verificar();
  PonerMarcas();
  PaginaPestanas::Refrescar();
}

}  // namespace novex::gui
