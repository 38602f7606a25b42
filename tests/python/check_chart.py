# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Runs the example that draws a chart, and looks at its picture: as large as asked, stars where they are projected, and
what is beside them darker.

usage: check_chart.py SOURCE_DIR
"""
import pathlib
import subprocess
import sys
import tempfile

import matplotlib.image
import numpy as np


def main():
    chart = pathlib.Path(sys.argv[1]) / "python/examples/chart.py"
    with tempfile.TemporaryDirectory() as folder:
        file = pathlib.Path(folder) / "chart.png"
        printed = subprocess.run([sys.executable, "-B", chart, file, "Betelgeuse", "1.3"], capture_output=True, text=True,
                                 check=True).stdout
        picture = matplotlib.image.imread(file)[:, :, :3]
    assert picture.shape == (800, 1200, 3), picture.shape
    assert int(printed.split(": ")[1].split()[0]) > 1000, printed
    red, _, blue = picture[396:404, 596:604].max(axis=(0, 1))  # Betelgeuse is in the middle, and red
    assert red > 0.8 and red > 1.2 * blue, (red, blue)
    assert np.median(picture) < 0.25
    print(f"{printed.strip().split(': ')[1]}; the star in the middle is red")


if __name__ == "__main__":
    main()
