#include "Quillmonger/preview/view/PreviewModel.h"

#include <QGuiApplication>
#include <utility>

#include "Quillmonger/preview/view/PictureDecoding.h"
#include "Quillmonger/settings/SettingsKeys.h"

namespace quillmonger {

namespace {

QVariantList rows(const std::vector<OculetRow>& rows) {
  QVariantList list;
  for (const OculetRow& row : rows) {
    list.append(
        QVariantMap{{"label", QString::fromUtf8(row.labelKey.data(), static_cast<qsizetype>(row.labelKey.size()))},
                    {"value", QString::fromStdString(row.value)}});
  }
  return list;
}

}  // namespace

PreviewModel::PreviewModel(Collaborators collaborators)
    : m_with(std::move(collaborators)), m_decoding(m_with.backgroundQueue, m_with.runLoop) {
  connect(&m_selection, &TextSelection::changed, this, [this] {
    if (!m_selection.isEmpty()) setSelectedValue({});
  });
  auto& preview = m_with.preview;
  m_subscriptions.push_back(preview.content().follow([this](const PreviewContent& content) { takeContent(content); }));
  m_subscriptions.push_back(preview.footer().subscribe([this](const PreviewFooter&) { emit footerChanged(); }));
  m_subscriptions.push_back(preview.item().follow([this](const auto& item) { takeItem(item); }));
  m_subscriptions.push_back(m_with.buttons.copied().subscribe([this](const auto&) { emit copiedButtonChanged(); }));
  m_subscriptions.push_back(m_with.isOptionPressed.subscribe([this](bool) { emit showsButtonKeysChanged(); }));
  m_subscriptions.push_back(m_with.defaults.updates<bool>(keys::showPreviewPaneScrollbar,
                                                          defaults::Defaults::Initial::yes, [this](const bool& isOn) {
                                                            m_showScrollbar = isOn;
                                                            emit showScrollbarChanged();
                                                          }));
}

void PreviewModel::takeItem(const PreviewViewModel::Item& item) {
  m_decoding.cancel();
  const bool isImage = item && item->isImage();
  const auto scaled = isImage ? item->image() : std::nullopt;
  m_isPictureUnreadable = isImage && !scaled;
  m_pictureAspect = scaled ? scaled->size.height / scaled->size.width : 0;
  m_picture = {};
  if (scaled) {
    const int width = qRound(paneWidth * qGuiApp->devicePixelRatio());
    m_decoding.start([this, picture = scaled->picture, width]() -> LatestWork::Finish {
      return [this, image = decodePicture(picture, width)] { takePicture(image); };
    });
  }
  emit pictureChanged();
  emit itemChanged();
}

void PreviewModel::takePicture(const QImage& picture) {
  m_picture = picture;
  m_isPictureUnreadable = picture.isNull();
  if (m_isPictureUnreadable) m_pictureAspect = 0;
  emit pictureChanged();
}

void PreviewModel::takeContent(const PreviewContent& content) {
  m_dateRows = rows(content.dateRows);
  m_colorRows = rows(content.colorRows);
  m_selection.clear();
  setSelectedValue({});
  // A view lets go of a whole text in one step; changes to a list would reach it while it still lays out the old one.
  const auto before = std::exchange(m_text, std::make_unique<TextPiecesModel>(content.text));
  emit contentChanged();
}

bool PreviewModel::hasJson() const { return jsonResult(*m_with.preview.content().value().results) != nullptr; }

QString PreviewModel::details() const { return QString::fromStdString(m_with.preview.content().value().details); }

QString PreviewModel::iconPath() const {
  const auto& url = m_with.preview.footer().value().application;
  return url ? QString::fromStdString(url->filePath().value_or(std::string())) : QString();
}

QString PreviewModel::appName() const { return QString::fromStdString(m_with.preview.footer().value().appName); }

QString PreviewModel::relativeDate() const {
  return QString::fromStdString(m_with.preview.footer().value().relativeDate);
}

QString PreviewModel::pasteCount() const { return QString::fromStdString(m_with.preview.footer().value().pasteCount); }

int PreviewModel::copiedButton() const {
  const auto button = m_with.buttons.copied().value();
  return button ? static_cast<int>(*button) : -1;
}

void PreviewModel::pressCopyButton(int button) { m_with.buttons.press(static_cast<std::size_t>(button)); }

void PreviewModel::setSelectedValue(const QString& value) {
  if (value == m_selectedValue) return;
  m_selectedValue = value;
  if (!value.isEmpty()) m_selection.clear();
  emit selectedValueChanged();
}

bool PreviewModel::copySelection() {
  if (!m_selectedValue.isEmpty()) {
    m_with.copying.copy([value = m_selectedValue.toStdString()] { return value; });
    return true;
  }
  if (m_selection.isEmpty()) return false;
  m_with.copying.copy([pieces = m_text->pieces(), range = m_selection.range()] { return selectedText(pieces, range); });
  return true;
}

void PreviewModel::selectAll() {
  const int last = m_text->rowCount() - 1;
  if (last < 0) return;
  m_selection.begin(0, 0);
  m_selection.extend(last,
                     static_cast<int>(m_text->data(m_text->index(last), TextPiecesModel::pieceRole).toString().size()));
}

}  // namespace quillmonger
