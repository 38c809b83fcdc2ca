// trace_outline PICTURE: prints the C++ table of the clock's outline, traced from its picture.
//
// The picture is drawn big, the edge of what is opaque is followed clockwise, and of all ways round
// it through points with whole coordinates the closest is taken. The table's first and last points
// are the left bell's upper left edge in an order others count on; a seam walks there and back,
// which cancels where a polygon is filled by the even-odd rule.

#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace {

constexpr int kWidth = 239;
constexpr int kHeight = 190;
constexpr int kScale = 8;  // drawn pixels to one of the picture's
constexpr int kOpaque = 128;

struct Place {
  int x = 0;
  int y = 0;
  bool operator==(const Place&) const = default;
};

using Places = std::vector<Place>;

constexpr std::array kHead = {Place{67, 30}, Place{67, 25}, Place{68, 22}, Place{70, 19},
                              Place{73, 15}, Place{87, 8},  Place{91, 8}};
constexpr std::array kTail = {Place{67, 30}, Place{91, 8}, Place{87, 8}, Place{77, 13},
                              Place{81, 10}, Place{86, 8}, Place{91, 8}};
constexpr Place kBellTop = {91, 8};    // the free part of the edge begins after this
constexpr Place kBellSide = {67, 30};  // and ends before this
// The figure's extent, the same for every drawing of it
constexpr int kLeft = 14;
constexpr int kTop = 8;
constexpr int kRight = 235;
constexpr int kBottom = 186;
constexpr std::size_t kPoints = 255;
constexpr std::size_t kFree = kPoints - kHead.size() - kTail.size();

// What is opaque of the drawn picture, with a transparent rim so that every edge can be walked.
class Mask {
 public:
  static constexpr int kColumns = kWidth * kScale;
  static constexpr int kRows = kHeight * kScale;

  explicit Mask(const QImage& image) : image_(image) {}

  bool at(int x, int y) const {
    return x >= 0 && y >= 0 && x < kColumns && y < kRows && qAlpha(image_.pixel(x, y)) >= kOpaque;
  }

 private:
  QImage image_;
};

std::optional<Mask> drawn(const QString& file) {
  QSvgRenderer picture(file);
  if (!picture.isValid()) return std::nullopt;
  QImage image(Mask::kColumns, Mask::kRows, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  picture.render(&painter);
  painter.end();
  return Mask(image);
}

// The corners of the drawn pixels along the edge, with the figure at the right hand: clockwise.
// Empty if the picture is.
Places edgeOf(const Mask& mask) {
  constexpr int kStepX[] = {1, 0, -1, 0};  // east, south, west, north
  constexpr int kStepY[] = {0, 1, 0, -1};
  // The pixels to the right and left of one who stands on a corner and looks in that direction
  constexpr int kRightX[] = {0, -1, -1, 0};
  constexpr int kRightY[] = {0, 0, -1, -1};

  Place start;
  while (start.y < Mask::kRows && !mask.at(start.x, start.y)) {
    if (++start.x == Mask::kColumns) start = {0, start.y + 1};
  }
  Places edge;
  if (start.y == Mask::kRows) return edge;
  Place here = start;
  int direction = 0;
  do {
    edge.push_back(here);
    here = {here.x + kStepX[direction], here.y + kStepY[direction]};
    const auto filled = [&](int side) {
      return mask.at(here.x + kRightX[side], here.y + kRightY[side]);
    };
    const int left = (direction + 3) % 4;
    if (filled(left)) {
      direction = left;
    } else if (!filled(direction)) {
      direction = (direction + 1) % 4;
    }
  } while (here != start);
  return edge;
}

// How many drawn pixels an edge encloses.
long enclosed(const Places& edge) {
  long sum = 0;
  for (std::size_t i = 0; i < edge.size(); ++i) {
    const Place a = edge[i];
    const Place b = edge[(i + 1) % edge.size()];
    sum += static_cast<long>(a.x) * b.y - static_cast<long>(b.x) * a.y;
  }
  return sum / 2;
}

long opaquePixels(const Mask& mask) {
  long count = 0;
  for (int y = 0; y < Mask::kRows; ++y) {
    for (int x = 0; x < Mask::kColumns; ++x) count += mask.at(x, y);
  }
  return count;
}

bool inExtent(Place point) {
  return point.x >= kLeft && point.x <= kRight && point.y >= kTop && point.y <= kBottom;
}

// Whether the points' extent is the figure's.
bool reachesAll(const Places& points) {
  const auto reaches = [&](auto onEdge) {
    return std::any_of(points.begin(), points.end(), onEdge);
  };
  return reaches([](Place point) { return point.x == kLeft; }) &&
         reaches([](Place point) { return point.x == kRight; }) &&
         reaches([](Place point) { return point.y == kTop; }) &&
         reaches([](Place point) { return point.y == kBottom; });
}

double distance(Place a, Place b) { return std::hypot(a.x - b.x, a.y - b.y); }

std::size_t nearest(const Places& edge, Place target) {
  const Place scaled = {target.x * kScale, target.y * kScale};
  const auto found = std::min_element(edge.begin(), edge.end(), [&](Place a, Place b) {
    return distance(a, scaled) < distance(b, scaled);
  });
  return static_cast<std::size_t>(std::distance(edge.begin(), found));
}

// How far a place is from the piece between two others.
double away(Place place, Place from, Place to) {
  const double dx = to.x - from.x;
  const double dy = to.y - from.y;
  const double length = dx * dx + dy * dy;
  const double along =
      length > 0 ? ((place.x - from.x) * dx + (place.y - from.y) * dy) / length : 0.0;
  const double t = std::clamp(along, 0.0, 1.0);
  return std::hypot(place.x - from.x - t * dx, place.y - from.y - t * dy);
}

// A point the outline may go through, and the place of the edge it stands for.
struct Candidate {
  Place point;
  std::size_t index = 0;
};

// All whole points within reach of the edge, in its order; the first and last are the edge's ends.
std::vector<Candidate> candidatesOf(const Places& edge) {
  constexpr double kReach = 0.75 * kScale;
  std::map<std::pair<int, int>, std::pair<double, std::size_t>> nearest;
  for (std::size_t i = 0; i < edge.size(); ++i) {
    const int left = edge[i].x / kScale;
    const int top = edge[i].y / kScale;
    for (const Place point :
         {Place{left, top}, Place{left + 1, top}, Place{left, top + 1}, Place{left + 1, top + 1}}) {
      const double off = distance({point.x * kScale, point.y * kScale}, edge[i]);
      if (off > kReach || !inExtent(point)) continue;
      const auto [found, added] = nearest.try_emplace({point.x, point.y}, off, i);
      if (!added && off < found->second.first) found->second = {off, i};
    }
  }
  std::vector<Candidate> candidates;
  for (const auto& [point, best] : nearest) {
    if (best.second == 0 || best.second + 1 == edge.size()) continue;
    candidates.push_back({{point.first, point.second}, best.second});
  }
  candidates.push_back({kBellTop, 0});
  candidates.push_back({kBellSide, edge.size() - 1});
  std::stable_sort(candidates.begin(), candidates.end(),
                   [](const Candidate& a, const Candidate& b) { return a.index < b.index; });
  return candidates;
}

// What a straight piece between two candidates costs: how far the edge between them is from it.
double cost(const Places& edge, const Candidate& from, const Candidate& to) {
  constexpr std::size_t kStride = 2;
  const Place a = {from.point.x * kScale, from.point.y * kScale};
  const Place b = {to.point.x * kScale, to.point.y * kScale};
  double sum = 0;
  for (std::size_t i = from.index; i <= to.index; i += kStride) {
    const double off = away(edge[i], a, b);
    sum += off * off;
  }
  return sum;
}

// The free part of the outline: of all ways through exactly so many candidates the closest one to
// the edge. Nothing if there is none.
std::optional<Places> freePoints(Places edge) {
  // From the bell's top all round to its side
  std::rotate(edge.begin(), edge.begin() + static_cast<std::ptrdiff_t>(nearest(edge, kBellTop)),
              edge.end());
  edge.resize(nearest(edge, kBellSide) + 1);
  const std::vector<Candidate> candidates = candidatesOf(edge);

  constexpr std::size_t kLongest = std::size_t{24} * kScale;  // a piece's, along the edge
  constexpr double kNever = std::numeric_limits<double>::infinity();
  struct Way {
    double cost = kNever;
    std::size_t from = 0;
  };
  constexpr std::size_t kPieces = kFree + 1;
  // The best way to each candidate by its number of pieces
  std::vector<std::array<Way, kPieces + 1>> ways(candidates.size());
  ways[0][0].cost = 0;
  for (std::size_t to = 1; to < candidates.size(); ++to) {
    for (std::size_t from = to; from-- > 0;) {
      const std::size_t length = candidates[to].index - candidates[from].index;
      if (length > kLongest) break;
      if (length == 0) continue;
      const double piece = cost(edge, candidates[from], candidates[to]);
      for (std::size_t pieces = 1; pieces <= kPieces; ++pieces) {
        const double sum = ways[from][pieces - 1].cost + piece;
        if (sum < ways[to][pieces].cost) ways[to][pieces] = {sum, from};
      }
    }
  }
  if (ways.back()[kPieces].cost == kNever) return std::nullopt;
  Places points(kFree);
  std::size_t at = candidates.size() - 1;
  for (std::size_t pieces = kPieces; pieces > 1; --pieces) {
    at = ways[at][pieces].from;
    points[pieces - 2] = candidates[at].point;
  }
  return points;
}

void print(const Places& points) {
  std::puts(
      "// Traced from assets/pictures/clock.svg by tools/trace_outline.cpp. To renew it after a\n"
      "// change of the picture build the target trace_outline and let its output be this file:\n"
      "//   trace_outline assets/pictures/clock.svg > src/clock/rules/outline.cpp\n"
      "\n"
      "#include \"clock/rules/outline.h\"\n"
      "\n"
      "namespace ratanka::clock {\n"
      "\n"
      "// clang-format off\n"
      "const std::array<Point, kOutlinePoints> kOutline = {{");
  constexpr std::size_t kPointsALine = 8;
  for (std::size_t i = 0; i < points.size(); ++i) {
    std::printf("%s{%d, %d},", i % kPointsALine == 0 ? "    " : " ", points[i].x, points[i].y);
    if (i % kPointsALine == kPointsALine - 1 || i + 1 == points.size()) std::puts("");
  }
  std::puts(
      "}};\n"
      "// clang-format on\n"
      "\n"
      "}  // namespace ratanka::clock");
}

int failed(const char* why) {
  std::fprintf(stderr, "trace_outline: %s\n", why);
  return EXIT_FAILURE;
}

}  // namespace

int main(int argc, char* argv[]) {
  if (argc != 2) return failed("usage: trace_outline PICTURE");
  const std::optional<Mask> mask = drawn(QString::fromLocal8Bit(argv[1]));
  if (!mask) return failed("can't read the picture");
  const Places edge = edgeOf(*mask);
  if (edge.empty()) return failed("the picture is empty");
  // A polygon's one edge can tell neither
  if (enclosed(edge) != opaquePixels(*mask)) return failed("the figure has holes or loose parts");
  const std::optional<Places> rest = freePoints(edge);
  if (!rest) return failed("the edge doesn't give so many points");
  if (!reachesAll(*rest)) return failed("the figure's extent isn't the agreed one");

  Places points(kHead.begin(), kHead.end());
  points.insert(points.end(), rest->begin(), rest->end());
  points.insert(points.end(), kTail.begin(), kTail.end());
  print(points);
  return EXIT_SUCCESS;
}
