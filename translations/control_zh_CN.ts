<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ControlXml</name>
    <message>
        <source>Ellipsoid</source>
        <translation>椭球</translation>
    </message>
    <message>
        <source>A known ellipsoid fills in axis and flattening; Custom leaves them to be typed.</source>
        <translation>选择已知椭球时自动填入长半轴和扁率；选择“自定义”时由用户输入。</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>WGS 84</source>
        <translation>WGS 84</translation>
    </message>
    <message>
        <source>GRS 1980</source>
        <translation>GRS 1980</translation>
    </message>
    <message>
        <source>CGCS2000</source>
        <translation>CGCS2000</translation>
    </message>
    <message>
        <source>Krassowsky 1940</source>
        <translation>克拉索夫斯基 1940</translation>
    </message>
    <message>
        <source>IAG 1975</source>
        <translation>IAG 1975（西安80）</translation>
    </message>
    <message>
        <source>International 1924</source>
        <translation>国际椭球 1924</translation>
    </message>
    <message>
        <source>Clarke 1866</source>
        <translation>克拉克 1866</translation>
    </message>
    <message>
        <source>Clarke 1880 (RGS)</source>
        <translation>克拉克 1880 (RGS)</translation>
    </message>
    <message>
        <source>Clarke 1880 (IGN)</source>
        <translation>克拉克 1880 (IGN)</translation>
    </message>
    <message>
        <source>Bessel 1841</source>
        <translation>贝塞尔 1841</translation>
    </message>
    <message>
        <source>Airy 1830</source>
        <translation>艾里 1830</translation>
    </message>
    <message>
        <source>Airy Modified 1849</source>
        <translation>艾里修正 1849</translation>
    </message>
    <message>
        <source>Everest 1830 (1937 Adjustment)</source>
        <translation>埃弗勒斯 1830（1937 年平差）</translation>
    </message>
    <message>
        <source>Everest 1830 (RSO 1969)</source>
        <translation>埃弗勒斯 1830 (RSO 1969)</translation>
    </message>
    <message>
        <source>Everest 1830 (1967 Definition)</source>
        <translation>埃弗勒斯 1830（1967 年定义）</translation>
    </message>
    <message>
        <source>Australian National Spheroid</source>
        <translation>澳大利亚国家椭球</translation>
    </message>
    <message>
        <source>GRS 1967</source>
        <translation>GRS 1967</translation>
    </message>
    <message>
        <source>Helmert 1906</source>
        <translation>赫尔默特 1906</translation>
    </message>
    <message>
        <source>Hough 1960</source>
        <translation>霍夫 1960</translation>
    </message>
    <message>
        <source>Indonesian National Spheroid</source>
        <translation>印度尼西亚国家椭球</translation>
    </message>
    <message>
        <source>WGS 72</source>
        <translation>WGS 72</translation>
    </message>
    <message>
        <source>PZ-90</source>
        <translation>PZ-90</translation>
    </message>
    <message>
        <source>Semi-major axis a</source>
        <translation>长半轴 a</translation>
    </message>
    <message>
        <source>Equatorial radius of the ellipsoid.</source>
        <translation>椭球的赤道半径。</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Inverse flattening 1/f</source>
        <translation>扁率倒数 1/f</translation>
    </message>
    <message>
        <source>Inverse flattening, such as 298.257223563; 0 for a sphere.</source>
        <translation>扁率的倒数，例如 298.257223563；圆球填 0。</translation>
    </message>
    <message>
        <source>Projection</source>
        <translation>投影</translation>
    </message>
    <message>
        <source>The map projection; the rows below are the parameters that it uses.</source>
        <translation>地图投影；下面各行是该投影所用的参数。</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Transverse Mercator</source>
        <translation>横轴墨卡托（高斯-克吕格）</translation>
    </message>
    <message>
        <source>UTM</source>
        <translation>UTM（通用横轴墨卡托）</translation>
    </message>
    <message>
        <source>Lambert conformal conic</source>
        <translation>兰勃特等角圆锥</translation>
    </message>
    <message>
        <source>Mercator</source>
        <translation>墨卡托</translation>
    </message>
    <message>
        <source>Oblique Mercator</source>
        <translation>斜轴墨卡托</translation>
    </message>
    <message>
        <source>Oblique stereographic</source>
        <translation>斜轴球面投影</translation>
    </message>
    <message>
        <source>Polar stereographic</source>
        <translation>极球面投影</translation>
    </message>
    <message>
        <source>Albers equal area</source>
        <translation>阿伯斯等积圆锥</translation>
    </message>
    <message>
        <source>Cassini-Soldner</source>
        <translation>卡西尼-索德纳</translation>
    </message>
    <message>
        <source>American polyconic</source>
        <translation>美国多圆锥</translation>
    </message>
    <message>
        <source>Krovak (north and east)</source>
        <translation>克罗瓦克（北、东）</translation>
    </message>
    <message>
        <source>Swiss oblique Mercator</source>
        <translation>瑞士斜轴墨卡托</translation>
    </message>
    <message>
        <source>Hotine oblique Mercator (variant A)</source>
        <translation>霍廷斜轴墨卡托（变体 A）</translation>
    </message>
    <message>
        <source>Lambert azimuthal equal area</source>
        <translation>兰勃特等积方位</translation>
    </message>
    <message>
        <source>Colombia urban</source>
        <translation>哥伦比亚城市</translation>
    </message>
    <message>
        <source>Direction of the axes</source>
        <translation>坐标轴方向</translation>
    </message>
    <message>
        <source>Where coordinates grow. In some countries northings are counted to the south, eastings to the west.</source>
        <translation>坐标增大的方向。有些国家的纵坐标向南计、横坐标向西计。</translation>
    </message>
    <message>
        <source>North and east</source>
        <translation>北、东</translation>
    </message>
    <message>
        <source>North and west</source>
        <translation>北、西</translation>
    </message>
    <message>
        <source>South and east</source>
        <translation>南、东</translation>
    </message>
    <message>
        <source>South and west</source>
        <translation>南、西</translation>
    </message>
    <message>
        <source>Central meridian</source>
        <translation>中央子午线</translation>
    </message>
    <message>
        <source>Longitude of the origin, east positive; with UTM, any longitude in the zone. Such as 117.5, 117 30 00 or 117 30 00 E.</source>
        <translation>原点经度，东经为正；UTM 投影可填带内任一经度。如 117.5、117 30 00 或 东经117度30分。</translation>
    </message>
    <message>
        <source>Latitude of origin</source>
        <translation>原点纬度</translation>
    </message>
    <message>
        <source>Latitude of the origin or centre, north positive; its sign tells the pole of a polar projection. Such as 30.5, 30 30 00 or 30 30 00 N.</source>
        <translation>原点或中心的纬度，北纬为正；极投影由其正负号决定是哪个极。如 30.5、30 30 00 或 北纬30度30分。</translation>
    </message>
    <message>
        <source>First standard parallel</source>
        <translation>第一标准纬线</translation>
    </message>
    <message>
        <source>Latitude where the scale is true. With an oblique Mercator, the angle from rectified to skew grid; 0 takes the azimuth.</source>
        <translation>比例真实的纬线。斜轴墨卡托投影时为由矫正格网到斜轴格网的角度；填 0 时取方位角。</translation>
    </message>
    <message>
        <source>Second standard parallel</source>
        <translation>第二标准纬线</translation>
    </message>
    <message>
        <source>The other latitude where the scale is true; 0 when there is only one.</source>
        <translation>另一条比例真实的纬线；只有一条时填 0。</translation>
    </message>
    <message>
        <source>Azimuth of central line</source>
        <translation>中心线方位角</translation>
    </message>
    <message>
        <source>Azimuth of the central line at the centre, clockwise from north; 0 takes the two points below.</source>
        <translation>中心线在投影中心的方位角，自北顺时针；填 0 时采用下面的两点。</translation>
    </message>
    <message>
        <source>Latitude of first point</source>
        <translation>第一点纬度</translation>
    </message>
    <message>
        <source>First point on the central line, used while the azimuth is 0.</source>
        <translation>中心线上的第一点，方位角为 0 时使用。</translation>
    </message>
    <message>
        <source>Longitude of first point</source>
        <translation>第一点经度</translation>
    </message>
    <message>
        <source>Latitude of second point</source>
        <translation>第二点纬度</translation>
    </message>
    <message>
        <source>Second point on the central line, used while the azimuth is 0.</source>
        <translation>中心线上的第二点，方位角为 0 时使用。</translation>
    </message>
    <message>
        <source>Longitude of second point</source>
        <translation>第二点经度</translation>
    </message>
    <message>
        <source>Scale factor</source>
        <translation>尺度比</translation>
    </message>
    <message>
        <source>Scale at the origin; 0 counts as 1. A plane in feet has feet a metre in it.</source>
        <translation>原点处的尺度比；0 按 1 处理。以英尺为单位的平面，其中含有每米英尺数。</translation>
    </message>
    <message>
        <source>Cutting radius</source>
        <translation>割圆半径</translation>
    </message>
    <message>
        <source>Distance from the centre to the circle where the plane cuts the ellipsoid; takes the place of the scale factor unless it is 0.</source>
        <translation>投影中心到投影面与椭球相割圆的距离；不为 0 时代替尺度比。</translation>
    </message>
    <message>
        <source>False easting</source>
        <translation>东偏移（东加常数）</translation>
    </message>
    <message>
        <source>Added to every easting, with the zone number in front where the grid has one.</source>
        <translation>加到每个东坐标上；坐标带有带号时，前面含带号。</translation>
    </message>
    <message>
        <source>False northing</source>
        <translation>北偏移（北加常数）</translation>
    </message>
    <message>
        <source>Added to every northing.</source>
        <translation>加到每个北坐标上。</translation>
    </message>
    <message>
        <source>Height of projection surface</source>
        <translation>投影面高</translation>
    </message>
    <message>
        <source>Height above the ellipsoid at which the plane has its true scale.</source>
        <translation>平面比例真实处的椭球面以上高度。</translation>
    </message>
    <message>
        <source>Datum shift, from WGS 84 to the system&apos;s datum</source>
        <translation>基准转换（由 WGS 84 到本坐标系统的基准）</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>转换模型</translation>
    </message>
    <message>
        <source>Seven-parameter shift from WGS 84 to the datum of the projection. Molodensky-Badekas is stored as the equivalent coordinate frame rotation.</source>
        <translation>由 WGS 84 到投影所用基准的七参数转换。莫洛金斯基-巴代卡斯模型以等效的坐标框架旋转模型保存。</translation>
    </message>
    <message>
        <source>Position vector (Bursa-Wolf)</source>
        <translation>位置矢量（布尔莎-沃尔夫）</translation>
    </message>
    <message>
        <source>Coordinate frame rotation</source>
        <translation>坐标框架旋转</translation>
    </message>
    <message>
        <source>Molodensky-Badekas</source>
        <translation>莫洛金斯基-巴代卡斯</translation>
    </message>
    <message>
        <source>Shift dX</source>
        <translation>平移 dX</translation>
    </message>
    <message>
        <source>Geocentric translation along X, from WGS 84.</source>
        <translation>由 WGS 84 出发、沿地心 X 轴的平移量。</translation>
    </message>
    <message>
        <source>Shift dY</source>
        <translation>平移 dY</translation>
    </message>
    <message>
        <source>Geocentric translation along Y, from WGS 84.</source>
        <translation>由 WGS 84 出发、沿地心 Y 轴的平移量。</translation>
    </message>
    <message>
        <source>Shift dZ</source>
        <translation>平移 dZ</translation>
    </message>
    <message>
        <source>Geocentric translation along Z, from WGS 84.</source>
        <translation>由 WGS 84 出发、沿地心 Z 轴的平移量。</translation>
    </message>
    <message>
        <source>Rotation rX</source>
        <translation>旋转 rX</translation>
    </message>
    <message>
        <source>Rotation about the X axis in arc seconds, with the sign of the chosen model.</source>
        <translation>绕 X 轴的旋转角，角秒，符号按所选模型。</translation>
    </message>
    <message>
        <source>″</source>
        <translation>″</translation>
    </message>
    <message>
        <source>Rotation rY</source>
        <translation>旋转 rY</translation>
    </message>
    <message>
        <source>Rotation about the Y axis in arc seconds, with the sign of the chosen model.</source>
        <translation>绕 Y 轴的旋转角，角秒，符号按所选模型。</translation>
    </message>
    <message>
        <source>Rotation rZ</source>
        <translation>旋转 rZ</translation>
    </message>
    <message>
        <source>Rotation about the Z axis in arc seconds, with the sign of the chosen model.</source>
        <translation>绕 Z 轴的旋转角，角秒，符号按所选模型。</translation>
    </message>
    <message>
        <source>Scale difference</source>
        <translation>尺度差</translation>
    </message>
    <message>
        <source>Difference of the scale from 1, in parts per million.</source>
        <translation>尺度与 1 之差，百万分之一。</translation>
    </message>
    <message>
        <source>ppm</source>
        <translation>ppm</translation>
    </message>
    <message>
        <source>Rotation centre X</source>
        <translation>旋转中心 X</translation>
    </message>
    <message>
        <source>Geocentric X of the point that the shift turns about. It is worked into the translations when the system is stored, which then is a coordinate frame rotation.</source>
        <translation>转换旋转中心的地心 X 坐标。保存坐标系统时并入平移量，转换模型变为坐标框架旋转。</translation>
    </message>
    <message>
        <source>Rotation centre Y</source>
        <translation>旋转中心 Y</translation>
    </message>
    <message>
        <source>Geocentric Y of the point that the shift turns about. It is worked into the translations when the system is stored, which then is a coordinate frame rotation.</source>
        <translation>转换旋转中心的地心 Y 坐标。保存坐标系统时并入平移量，转换模型变为坐标框架旋转。</translation>
    </message>
    <message>
        <source>Rotation centre Z</source>
        <translation>旋转中心 Z</translation>
    </message>
    <message>
        <source>Geocentric Z of the point that the shift turns about. It is worked into the translations when the system is stored, which then is a coordinate frame rotation.</source>
        <translation>转换旋转中心的地心 Z 坐标。保存坐标系统时并入平移量，转换模型变为坐标框架旋转。</translation>
    </message>
    <message>
        <source>Plane shift (four parameters)</source>
        <translation>平面转换（四参数）</translation>
    </message>
    <message>
        <source>Use plane shift</source>
        <translation>使用平面转换</translation>
    </message>
    <message>
        <source>Shift, rotation and scale in the plane, after the projection.</source>
        <translation>投影之后在平面上的平移、旋转和缩放。</translation>
    </message>
    <message>
        <source>Shift north</source>
        <translation>北平移</translation>
    </message>
    <message>
        <source>Translation to the north.</source>
        <translation>向北的平移量。</translation>
    </message>
    <message>
        <source>Shift east</source>
        <translation>东平移</translation>
    </message>
    <message>
        <source>Translation to the east.</source>
        <translation>向东的平移量。</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>旋转角</translation>
    </message>
    <message>
        <source>Rotation about the origin below; positive turns azimuths clockwise.</source>
        <translation>绕下面原点的旋转；正值使方位角顺时针增大。</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>尺度</translation>
    </message>
    <message>
        <source>Scale about the origin below; 0 counts as 1.</source>
        <translation>以下面原点为中心的尺度；0 按 1 处理。</translation>
    </message>
    <message>
        <source>Origin north</source>
        <translation>原点北坐标</translation>
    </message>
    <message>
        <source>Northing of the point that the plane is turned and scaled about.</source>
        <translation>平面旋转和缩放中心点的北坐标。</translation>
    </message>
    <message>
        <source>Origin east</source>
        <translation>原点东坐标</translation>
    </message>
    <message>
        <source>Easting of the point that the plane is turned and scaled about.</source>
        <translation>平面旋转和缩放中心点的东坐标。</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>校正</translation>
    </message>
    <message>
        <source>Use correction</source>
        <translation>使用校正</translation>
    </message>
    <message>
        <source>Constants that are added to the coordinates.</source>
        <translation>加到坐标上的常数。</translation>
    </message>
    <message>
        <source>Correction north</source>
        <translation>北校正量</translation>
    </message>
    <message>
        <source>Correction east</source>
        <translation>东校正量</translation>
    </message>
    <message>
        <source>Added to every easting.</source>
        <translation>加到每个东坐标上。</translation>
    </message>
    <message>
        <source>Correction height</source>
        <translation>高程校正量</translation>
    </message>
    <message>
        <source>Added to every height.</source>
        <translation>加到每个高程上。</translation>
    </message>
    <message>
        <source>Height fitting</source>
        <translation>高程拟合</translation>
    </message>
    <message>
        <source>Use height fitting</source>
        <translation>使用高程拟合</translation>
    </message>
    <message>
        <source>A polynomial of the position that is added to every height.</source>
        <translation>以平面位置为变量的多项式，加到每个高程上。</translation>
    </message>
    <message>
        <source>Coefficient a0</source>
        <translation>系数 a0</translation>
    </message>
    <message>
        <source>The constant: h&apos; = h + a0 + a1 dx + a2 dy + a3 dx² + a4 dy² + a5 dx dy, dx north and dy east of the origin.</source>
        <translation>常数项：h&apos; = h + a0 + a1 dx + a2 dy + a3 dx² + a4 dy² + a5 dx dy，dx、dy 为相对原点的北、东坐标差。</translation>
    </message>
    <message>
        <source>Coefficient a1</source>
        <translation>系数 a1</translation>
    </message>
    <message>
        <source>Height a unit to the north.</source>
        <translation>向北每单位长度的高程变化。</translation>
    </message>
    <message>
        <source>Coefficient a2</source>
        <translation>系数 a2</translation>
    </message>
    <message>
        <source>Height a unit to the east.</source>
        <translation>向东每单位长度的高程变化。</translation>
    </message>
    <message>
        <source>Coefficient a3</source>
        <translation>系数 a3</translation>
    </message>
    <message>
        <source>Height by the square of the way to the north.</source>
        <translation>北坐标差平方项的系数。</translation>
    </message>
    <message>
        <source>Coefficient a4</source>
        <translation>系数 a4</translation>
    </message>
    <message>
        <source>Height by the square of the way to the east.</source>
        <translation>东坐标差平方项的系数。</translation>
    </message>
    <message>
        <source>Coefficient a5</source>
        <translation>系数 a5</translation>
    </message>
    <message>
        <source>Height by the product of both ways.</source>
        <translation>北、东坐标差乘积项的系数。</translation>
    </message>
    <message>
        <source>Northing of the point that the polynomial is computed from.</source>
        <translation>多项式计算原点的北坐标。</translation>
    </message>
    <message>
        <source>Easting of the point that the polynomial is computed from.</source>
        <translation>多项式计算原点的东坐标。</translation>
    </message>
    <message>
        <source>Vertical slope</source>
        <translation>垂直平差（斜面）</translation>
    </message>
    <message>
        <source>Use vertical slope</source>
        <translation>使用垂直斜面</translation>
    </message>
    <message>
        <source>An inclined plane that is added to every height.</source>
        <translation>加到每个高程上的倾斜平面。</translation>
    </message>
    <message>
        <source>Height at origin</source>
        <translation>原点高差</translation>
    </message>
    <message>
        <source>Slope north</source>
        <translation>北斜率</translation>
    </message>
    <message>
        <source>Rise of the plane to the north.</source>
        <translation>斜面向北的升高。</translation>
    </message>
    <message>
        <source>mm/km</source>
        <translation>mm/km</translation>
    </message>
    <message>
        <source>Slope east</source>
        <translation>东斜率</translation>
    </message>
    <message>
        <source>Rise of the plane to the east.</source>
        <translation>斜面向东的升高。</translation>
    </message>
    <message>
        <source>Northing of the point where the plane has the height above.</source>
        <translation>斜面取上述高差处的北坐标。</translation>
    </message>
    <message>
        <source>Easting of the point where the plane has the height above.</source>
        <translation>斜面取上述高差处的东坐标。</translation>
    </message>
    <message>
        <source>Geoid</source>
        <translation>大地水准面</translation>
    </message>
    <message>
        <source>Use geoid</source>
        <translation>使用大地水准面</translation>
    </message>
    <message>
        <source>Heights above the geoid in place of heights above the ellipsoid.</source>
        <translation>以大地水准面上的高程代替椭球高。</translation>
    </message>
    <message>
        <source>Geoid file</source>
        <translation>大地水准面文件</translation>
    </message>
    <message>
        <source>Grid of geoid heights above WGS 84, in GTX or GeoTIFF format.</source>
        <translation>相对 WGS 84 的大地水准面差距格网，GTX 或 GeoTIFF 格式。</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>工程</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Where the project's files are.</source>
        <translation>工程文件所在的文件夹。</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>创建时间</translation>
    </message>
    <message>
        <source>When the project was made, local time.</source>
        <translation>工程的创建时间（本地时间）。</translation>
    </message>
    <message>
        <source>Program version</source>
        <translation>程序版本</translation>
    </message>
    <message>
        <source>The version of the program that made the project.</source>
        <translation>创建该工程的程序版本。</translation>
    </message>
    <message>
        <source>Survey</source>
        <translation>测量</translation>
    </message>
    <message>
        <source>Survey name</source>
        <translation>测量名称</translation>
    </message>
    <message>
        <source>The survey as the contract names it.</source>
        <translation>合同中的测量项目名称。</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>工区</translation>
    </message>
    <message>
        <source>Block, county or basin.</source>
        <translation>区块、县或盆地。</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>甲方</translation>
    </message>
    <message>
        <source>For whom the survey is made.</source>
        <translation>测量项目的委托方。</translation>
    </message>
    <message>
        <source>Contractor</source>
        <translation>施工单位</translation>
    </message>
    <message>
        <source>Who makes the survey.</source>
        <translation>承担测量的单位。</translation>
    </message>
    <message>
        <source>Crew</source>
        <translation>队伍</translation>
    </message>
    <message>
        <source>Name or number of the field crew.</source>
        <translation>野外队伍的名称或编号。</translation>
    </message>
    <message>
        <source>Chief surveyor</source>
        <translation>测量负责人</translation>
    </message>
    <message>
        <source>Who answers for the stake-out data.</source>
        <translation>放样数据的负责人。</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Coordinate unit</source>
        <translation>坐标单位</translation>
    </message>
    <message>
        <source>The unit of the cursor position and the scale bar; a setting of the program, not of the project. Feet are those of the coordinate system, or international ones where it has none.</source>
        <translation>光标位置和比例尺的单位；这是程序的设置，与工程无关。英尺采用坐标系统自身的英尺；坐标系统不用英尺时为国际英尺。</translation>
    </message>
    <message>
        <source>Metres</source>
        <translation>米</translation>
    </message>
    <message>
        <source>Feet</source>
        <translation>英尺</translation>
    </message>
    <message>
        <source>Design</source>
        <translation>设计</translation>
    </message>
    <message>
        <source>Horizontal distance from design, max.</source>
        <translation>与设计点平面距离上限</translation>
    </message>
    <message>
        <source>Height difference from design, max.</source>
        <translation>与设计点高差上限</translation>
    </message>
    <message>
        <source>Transversal deviation, max.</source>
        <translation>横向偏差上限</translation>
    </message>
    <message>
        <source>Longitudinal deviation, max.</source>
        <translation>纵向偏差上限</translation>
    </message>
    <message>
        <source>Accuracy</source>
        <translation>精度</translation>
    </message>
    <message>
        <source>HRMS, max.</source>
        <translation>HRMS 上限</translation>
    </message>
    <message>
        <source>VRMS, max.</source>
        <translation>VRMS 上限</translation>
    </message>
    <message>
        <source>Distance to base station, max.</source>
        <translation>与基准站距离上限</translation>
    </message>
    <message>
        <source>Antenna height</source>
        <translation>天线高</translation>
    </message>
    <message>
        <source>Antenna height, min.</source>
        <translation>天线高下限</translation>
    </message>
    <message>
        <source>Antenna height, max.</source>
        <translation>天线高上限</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>卫星</translation>
    </message>
    <message>
        <source>Satellites, min.</source>
        <translation>卫星数下限</translation>
    </message>
    <message>
        <source>PDOP, min.</source>
        <translation>PDOP 下限</translation>
    </message>
    <message>
        <source>PDOP, max.</source>
        <translation>PDOP 上限</translation>
    </message>
    <message>
        <source>HDOP, min.</source>
        <translation>HDOP 下限</translation>
    </message>
    <message>
        <source>HDOP, max.</source>
        <translation>HDOP 上限</translation>
    </message>
    <message>
        <source>VDOP, min.</source>
        <translation>VDOP 下限</translation>
    </message>
    <message>
        <source>VDOP, max.</source>
        <translation>VDOP 上限</translation>
    </message>
    <message>
        <source>Resurvey</source>
        <translation>复测</translation>
    </message>
    <message>
        <source>Resurvey code</source>
        <translation>复测代码</translation>
    </message>
    <message>
        <source>North difference, max.</source>
        <translation>北坐标差上限</translation>
    </message>
    <message>
        <source>East difference, max.</source>
        <translation>东坐标差上限</translation>
    </message>
    <message>
        <source>Elevation difference, max.</source>
        <translation>高程差上限</translation>
    </message>
    <message>
        <source>km</source>
        <translation>km</translation>
    </message>
    <message>
        <source>Survey result</source>
        <translation>测量成果</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>线号</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>点号</translation>
    </message>
    <message>
        <source>Point mark</source>
        <translation>点标识</translation>
    </message>
    <message>
        <source>Whether a receiver or a source stands there.</source>
        <translation>该处是接收点还是激发点。</translation>
    </message>
    <message>
        <source>R (receiver)</source>
        <translation>R（接收点）</translation>
    </message>
    <message>
        <source>S (source)</source>
        <translation>S（激发点）</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>In the time zone of the menu Tools.</source>
        <translation>按“工具”菜单中所选的时区显示。</translation>
    </message>
    <message>
        <source>Measure mode</source>
        <translation>测量模式</translation>
    </message>
    <message>
        <source>Loft is a stake-out of a design point.</source>
        <translation>“放样”即对设计点的放样。</translation>
    </message>
    <message>
        <source>Solution type</source>
        <translation>解类型</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>The code of the last quality check, a digit a family of tests; 0 when all passed, and before the check.</source>
        <translation>最近一次质量检查的代码，每位数字对应一类检查；全部合格或尚未检查时为 0。</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>North</source>
        <translation>北坐标</translation>
    </message>
    <message>
        <source>East</source>
        <translation>东坐标</translation>
    </message>
    <message>
        <source>Elevation</source>
        <translation>高程</translation>
    </message>
    <message>
        <source>Sea height</source>
        <translation>海拔高</translation>
    </message>
    <message>
        <source>By the geoid of the coordinate system; the elevation without one.</source>
        <translation>按坐标系统的大地水准面计算；没有时等于高程。</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>纬度</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>经度</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>大地高</translation>
    </message>
    <message>
        <source>Antenna</source>
        <translation>天线</translation>
    </message>
    <message>
        <source>The height of the pole as the crew typed it.</source>
        <translation>作业组输入的对中杆高度。</translation>
    </message>
    <message>
        <source>Moves heights</source>
        <translation>同时改正高程</translation>
    </message>
    <message>
        <source>A changed antenna height moves the heights: elevation, altitude and sea height are lowered by what is added to it.</source>
        <translation>修改天线高时同时改正高程：天线高增加多少，高程、大地高和海拔高就降低多少。</translation>
    </message>
    <message>
        <source>Field notes</source>
        <translation>野外记录</translation>
    </message>
    <message>
        <source>Surveyor</source>
        <translation>测量员</translation>
    </message>
    <message>
        <source>Obstacle</source>
        <translation>障碍物</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>The file of the photo.</source>
        <translation>照片文件。</translation>
    </message>
    <message>
        <source>Design north</source>
        <translation>设计北坐标</translation>
    </message>
    <message>
        <source>Design east</source>
        <translation>设计东坐标</translation>
    </message>
    <message>
        <source>Design elev.</source>
        <translation>设计高程</translation>
    </message>
    <message>
        <source>Transversal</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>How far the point lies beside its line.</source>
        <translation>点偏离测线的距离。</translation>
    </message>
    <message>
        <source>Longitudinal</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>How far the point lies from its place, measured along its line.</source>
        <translation>沿测线方向点偏离其设计位置的距离。</translation>
    </message>
    <message>
        <source>HRMS</source>
        <translation>HRMS</translation>
    </message>
    <message>
        <source>Horizontal accuracy.</source>
        <translation>水平精度。</translation>
    </message>
    <message>
        <source>VRMS</source>
        <translation>VRMS</translation>
    </message>
    <message>
        <source>Vertical accuracy.</source>
        <translation>垂直精度。</translation>
    </message>
    <message>
        <source>PDOP</source>
        <translation>PDOP</translation>
    </message>
    <message>
        <source>HDOP</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>VDOP</source>
        <translation>VDOP</translation>
    </message>
    <message>
        <source>Epochs</source>
        <translation>历元数</translation>
    </message>
    <message>
        <source>Correction age</source>
        <translation>差分龄期</translation>
    </message>
    <message>
        <source>s</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>The age of the differential corrections.</source>
        <translation>差分改正数的龄期。</translation>
    </message>
    <message>
        <source>Satellite info</source>
        <translation>卫星详情</translation>
    </message>
    <message>
        <source>Base station</source>
        <translation>基站</translation>
    </message>
    <message>
        <source>Base north</source>
        <translation>基站北坐标</translation>
    </message>
    <message>
        <source>Base east</source>
        <translation>基站东坐标</translation>
    </message>
    <message>
        <source>Base latitude</source>
        <translation>基站纬度</translation>
    </message>
    <message>
        <source>Base longitude</source>
        <translation>基站经度</translation>
    </message>
    <message>
        <source>Base altitude</source>
        <translation>基站大地高</translation>
    </message>
    <message>
        <source>Above the ellipsoid.</source>
        <translation>椭球面以上的高度。</translation>
    </message>
    <message>
        <source>Base distance</source>
        <translation>基站距离</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>仪器型号</translation>
    </message>
    <message>
        <source>Serial no.</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Design point</source>
        <translation>设计点</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>方位角</translation>
    </message>
    <message>
        <source>Of the line at the point, clockwise from grid north.</source>
        <translation>测线在该点的方位角，从坐标北顺时针计。</translation>
    </message>
    <message>
        <source>Deviation from the design</source>
        <translation>相对设计的偏差</translation>
    </message>
</context>
</TS>
