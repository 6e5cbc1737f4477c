#pragma once

#include "lum_sdk/raster/BaseMap.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QSpinBox;

/// The fields of one base map, and below them what is wrong with it.
class BaseMapForm final : public QWidget
{
    Q_OBJECT

public:
    explicit BaseMapForm(QWidget* parent);

    void set(const lum::BaseMap& map);
    [[nodiscard]] lum::BaseMap map() const;
    void showFault(const QString& fault);
    /// Puts the cursor into the field that most likely holds the fault of the base map.
    void goToFault();
    void goToName();

    /// "Road Map", "Satellite Map" or "Terrain Map".
    [[nodiscard]] static QString captionOf(lum::BaseMapKind kind);

Q_SIGNALS:
    /// The user has changed a field.
    void edited();

private:
    void addFields(QFormLayout& form);
    [[nodiscard]] QWidget* makeAddressRow();
    [[nodiscard]] QWidget* makeZoomRow();
    void browse();
    void onEdited();
    /// Zoom, size and keeping concern tiles that a service delivers.
    void enableForAddress();

    QLineEdit* m_name;
    QComboBox* m_kind;
    QLineEdit* m_address;
    QSpinBox* m_leastZoom;
    QSpinBox* m_greatestZoom;
    QComboBox* m_tileSize;
    QLineEdit* m_attribution;
    QCheckBox* m_keepsTiles;
    QLabel* m_fault;
};
