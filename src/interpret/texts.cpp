#include "interpret/texts.h"

// One text a line, so that each can be read and mended as a whole.
// clang-format off

const std::string_view introText =
    "Zi Wei Dou Shu is a branch of traditional Chinese Astrology based on the Chinese Lunar Calendar. Zi Wei Dou Shu reveals a person's personality, his characteristic traits and also his potentials related to money, profession, health and his relationships with parent, siblings, spouse, children and friends. The Zi Wei Dou Shou chart is divided into 12 houses, with each house representing the 12 Palaces";

const std::string_view bodyPalaceText =
    "Also known as the Shen Gong. 'Shen' means body. The location of the Body Palace is very much dependant upon that of the Life Palace. The Body palace generally represents one's early life i.e. life till 35 years of age and also the later life i.e. life after 50 years of age.";

// "Carrer" and the singular "Sibling" are kept on purpose.
const std::array<PalaceText, palaceTextCount> palaceTexts{{
    {"Life Palace", "Life Palace :- ",
     "Also known as the Ming Gong. In Chinese 'Ming' refers to life. The Life Palace is the most important palace in the Zi Wei Dou Shou chart. It is the palace which represents your personality, your characteristic traits and deals with all your other inborn capabilities, your appearance, your luck, your positive and negative developments and the like. This palace foretells a person's destiny."},
    {"Siblings", "Sibling Palace :- ",
     "Also known as the Xiong Di Gong. 'Xiong' means brothers and 'Di' means sisters. The Siblings Palace indicates the number of brothers and sisters you will be having, your relationship with each other and also the extent of union or rivalry that will be there in your relationship."},
    {"Marriage", "Marriage Palace :- ",
     "Also known as the Fu Qi Gong. 'Fu' means husband and 'Qi' means wife. The Marriage Palace represents the marital bliss in your life. It gives you an insight into the personality of your spouse, his/ her characteristic traits, potentials and the like. Possibilities of separation, divorce and death can also be known from this particular palace. "},
    {"Children", "Children Palace :- ",
     "Also known as the Zi Nu Gong. 'Zi' means son and 'Nu' means daughter. The Children Palace represents whether you will have children or not; the characteristic traits of your children; the fame and prosperity that your child will be gaining and the like. The relationship between the parents and the children is also reflected clearly in this palace. Added to the above, it is with the help of this palace that you come to know to what extent you are satisfied in your sexual life."},
    {"Wealth", "Wealth Palace :- ",
     "Also known as the Cai Ang Gong. 'Cai' means riches and 'Ang' means prosperity. Thus this palace indicates the amount of wealth that you will accumulate. Whether you will have steady source of income or not, what will be your source of income, how much losses you will encounter, your capability of managing your finance and your cash outflow all are indicated by this specific palace. Wealth palace is closely related to happiness and property palace."},
    {"Health", "Health Palace :- ",
     "Also known as the Ji E Gong. 'Ji' means illness or sickness and 'E' means misfortune. As the name implies, the Health Palace represents your physical health and fitness and the kind of illness and sickness you may be affected with. If you are likely to be affected from any kind of serious injuries because of some accidents or natural causes it is also indicated here."},
    {"Travel", "Travel Palace :- ",
     "Also known as the Qian Yi Gong. 'Qian Yi' in Chinese means traveling, moving or shifting over from one place to the other. The travel palace is the palace which represents whether it is necessary for you to relocate or not in order to achieve success. It indicates the amount of traveling that you will be undertaking in your life time. Your hometown and your place of permanent address, your social skills and luck associated with traveling and certain specific events like traffic accidents all are indicated in this specific palace."},
    {"Friends", "Friends Palace :- ",
     "Also known as the Pu Yi Gong. The Friends Palace represents the kind of pals and colleagues you will be having and whether they will be your actual friends or not. It also reflects to what extent your friends and colleagues will be helping you out in your times of need. The palace deals with the kind of relationship you share with your peers and friends. The Chinese believes that 'Friends are able to influence one's beliefs and behavior, sometimes more than any other people would.' So, it is your friends who shape up your life to some extent. Whether your friends are loyal, trustworthy, and helpful or not, all are indicated here."},
    {"Career", "Carrer Palace :- ",
     "Also known as the Shi Ye Gong. The Career Palace indicates the possible kind of career you should pursue according to your Chinese birth chart. The amount of success that you can expect from your chosen career is represented by this palace. It also reflects your achievements in your work place, your prospects, your reputation and recognition. This palace does not necessarily indicate that everyone has to be in a job. If you are a housewife, then your home is your workplace; for a teacher, the school is her workplace and for the senior and retired citizens this palace indicates their social lives."},
    {"Property", "Property Palace :- ",
     "Also known as the Tian Zhai Gong. 'Tian' means field of work and 'Zhai' means the house to stay. Thus the Property Palace is the palace where which reflects your living environment and also your extra-marital affairs. The amount of inherited property that you will acquire, your financial security and the quality of your property is also indicated in here."},
    {"Fortune", "Fortune Palace :- ",
     "Also known as the Fu De Gong. Fortune Palace represents your moral, spiritual and emotional aspects. This palace indicates whether you live a peaceful life or not. Happiness palace is often known by many other names like Happiness Palace, Virtue Palace and Karma Palace. Your thoughts are not always reflected by your behavior. The Fortune Palace  reveals the psychological aspect of your nature and tells you whether you are an optimistic or pessimistic person by nature. If you bear any inclination to attempt suicide, it is also reflected clearly in this palace."},
    {"Parents", "Parents Palace :- ",
     "Also known as the Fu Mu Gong. In Chinese 'Fu' means father and 'Mu' means mother. As the name implies the Parents Palace deals with your parents and your family backgrounds. It is the palace which tells you about the general lick of your parents, their health, prosperity, marital lives, and longevity and also about their character. The relationship that you share with your parents is also indicated in this house or palace. "},
}};

// The eleventh texts describe the Emperor's Minister, yet they stand with the minor star Tian Xing: kept on
// purpose. The major stars Tian Xiang and Po Jun have no texts.
const std::array<StarText, starTextCount> starTexts{{
    {Star::ZiWei, "Zi Wei Star :- ",
     "Zi Wei is also known as the Emperor Star. As the name implies, this is a commanding star. Commands and orders are always associated with the Emperors. Zi Wei is the leader star of Tian Ji, Tai Yang, Wu Qu, Tian Tong and Lian Zhen. The Emperor Star reflects the major direction of a person's life."},
    {Star::TianJi, "Tian Ji Star :- ",
     "Tian Ji is one of the most active of all the other stars. This is the star which is associated with creativity and artistic thinking. As the name implies, natives of this star are innovative in nature and make excellent scholars in the field of public relations, mediations and communications."},
    {Star::TaiYang, "Tai Yang Star :- ",
     "Also Known as the Sun star, Tai Yang is the star of power, masculinity and generosity. This star is said to be very auspicious for those people who are born during the day time. The sun shines bright during the day and so it is very easy for those natives to attain success, fame and prosperity."},
    {Star::WuQu, "Wu Qu Star :- ",
     "Also known as the Army General, Wu Qu is a hard working star. This is the star which helps you in accumulating your wealth and finance through hard work and lots of labor. Wu Qu denotes a successful career and the natives are absolute workaholics. They can turn out to be cold hearted people at times and it is because of their work which will make it difficult for them to continue close and long lasting relationship."},
    {Star::TianTong, "Tian Tong Star :- ",
     "Also known as the relaxed lovers of life, Tiang Tons stars are known to love all the good things in life - art, music, good food, fine wine and the like. Things come in very easily to the Tiang Tong natives. These folks are dreamers with lots of ambition but very little achievement"},
    {Star::LianZhen, "Lian Zhen Star :- ",
     "Also known as the Politician, Lian Zhen is an auspicious star for a person to be a politician or an officer. Like the politicians, a little bit of praise and flattery is needed to influence Lian Zhen star. Lian Zhen natives are generally ambitious; they love to make friends, and narrate those experiences to people which they like to hear."},
    {Star::TianFu, "Tian Fu Star :- ",
     "Also known as the Emperor's Treasury, Tian Fu deals with money, property and finances. You people are very careful, cautious and capable when it comes to handling monetary matters. You are very trustworthy and expect the same level of loyalty from others as well."},
    {Star::TaiYin, "Tai Yin Star :- ",
     "Also known as the Moon, Tai Yin is a star which has good or bad effects depending upon the time of birth of an individual. Tai Yin is the Moon star and symbolizes femininity. Natives of the Tai Yin star are gentle people with a refined personality. You are pretty and take special care of your appearance."},
    {Star::TanLang, "Tan Lang Star :- ",
     "Also known as the greedy wolf, Tan Lang is the 'star of talents'. Natives born under this star can easily influence others through their eloquence and gracefulness. Effects of tan Lang are either very good or very bad. Tan Lang folks are free thinkers, fearless and revolutionaries. They love all the good things of life - good languages, good food, good wine, and romance, gambling and so on. "},
    {Star::JuMen, "Ju Men Star :- ",
     "Also known as the Big Door or Big Mouth, Ju Men is the star which is associated with speaking, eloquence, and your ability to express yourself in words. Men natives can easily get into trouble because of their talkative nature. To avoid these troubles you should better exercise control over your tongue and must know what to speak, when and where."},
    {Star::TianXing, "Tian Xing Star :- ",
     "Also known as the Emperor's Minister, Tian Xing star gives birth to an alert, intelligent and a prudent person. A person born under this star possesses great energy level and is known to work throughout the day tirelessly and continuously. But you however lack ambition and feel more comfortable in a dependant job."},
    {Star::TianLiang, "Tian Liang Star :- ",
     "Also known as the Longevity star, Tian Liang is one of the most auspicious stars. It has the capability of turning a misfortune into good fortune. Natives born under the influence of this star are known to be highly active, energetic and enthusiastic."},
    {Star::QiSha, "Qi Sha Star :- ",
     "Also known as the Seven Killings, Qi Sha is an aggressive star and it likes to take up challenges and risks. Qi Sha natives are highly rational and independent by nature. You people have a strong and firm personality and this thing will make you suffer in your life."},
}};
