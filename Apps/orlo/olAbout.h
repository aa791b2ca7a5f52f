#pragma once

class QWidget;

/// Says what this program is and on which libraries it stands; their licences want to be named.
void olShowAbout(QWidget &parent);
